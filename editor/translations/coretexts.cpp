#include "coretexts.h"

#include "base/textcodec.h"
#include "project/variabledatabase.h"

#include <QCoreApplication>

QString TranslateCoreText(const char* context, const std::string& text)
{
    const std::string utf8 = Gb2312ToUtf8OrKeep(text);
    // An empty source would find the translation file's header.
    if (utf8.empty())
        return {};
    return QCoreApplication::translate(context, utf8.c_str());
}

QString VariableNodeText(const VariableNode& node)
{
    const bool named = node.kind == VariableNode::Kind::Database || node.kind == VariableNode::Kind::Group;
    return named ? QString::fromStdString(Gb2312ToUtf8OrKeep(node.text))
                 : TranslateCoreText(CoreTextContext::kVariables, node.text);
}
