#include "editorextensions.h"

#include "classregistry.h"

namespace {

struct NamedRowDialog {
    std::string propertyName;
    RowDialog dialog;
};

CClassRegistry<CanvasControlFactory>& CanvasControls()
{
    static CClassRegistry<CanvasControlFactory> registry;
    return registry;
}

CClassRegistry<NamedRowDialog>& RowDialogs()
{
    static CClassRegistry<NamedRowDialog> registry;
    return registry;
}

} // namespace

void RegisterCanvasControl(const CHmiRuntimeClass& widgetClass, CanvasControlFactory factory)
{
    if (factory)
        CanvasControls().Add(widgetClass, std::move(factory));
}

void RegisterRowDialog(const CHmiRuntimeClass& widgetClass, std::string propertyName, RowDialog dialog)
{
    if (dialog)
        RowDialogs().Add(widgetClass, {std::move(propertyName), std::move(dialog)});
}

const CanvasControlFactory* FindCanvasControl(const CHmiRuntimeClass* widgetClass)
{
    return CanvasControls().Find(widgetClass, [](const CanvasControlFactory&) { return true; });
}

const RowDialog* FindRowDialog(const CHmiRuntimeClass* widgetClass, std::string_view propertyName)
{
    const NamedRowDialog* found = RowDialogs().Find(
        widgetClass, [propertyName](const NamedRowDialog& entry) { return entry.propertyName == propertyName; });
    return found ? &found->dialog : nullptr;
}
