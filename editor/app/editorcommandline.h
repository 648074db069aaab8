#pragma once

#include <QString>
#include <QStringList>

#include <utility>

// The editor's command line: `kelvo-hmi-editor [--modules DIR]... [FILE]`. FILE is the one file
// argument: a window file to open, or a project folder (see CTamloApp). Options the editor does
// not know are passed over, as they always were.
struct EditorCommandLine {
    enum class Request {
        Start,     // start the editor
        Help,      // print text on stdout and end
        Version,   // print text on stdout and end
        Malformed, // print text on stderr and end unsuccessfully
    };

    Request request = Request::Start;
    QString text;
    QString file;               // empty: none given
    QStringList modulesFolders; // in the order given

    // arguments as the application received them, the program first.
    static EditorCommandLine Parse(const QStringList& arguments);

private:
    void Answer(Request what, QString answer)
    {
        request = what;
        text = std::move(answer);
    }
};
