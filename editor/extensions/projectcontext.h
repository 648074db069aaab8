#pragma once

#include <QColor>
#include <QString>

#include <functional>

class QDialog;
class QWidget;

// What the project dialogs need from their surroundings: how a dialog is run and the
// system's own choosers and message boxes. The editor uses the interactive defaults; tests
// replace them to drive the dialogs without a person.
struct ProjectContext {
    // Runs a modal dialog and returns its result (QDialog::Accepted or Rejected).
    using DialogRunner = std::function<int(QDialog& dialog)>;
    // The folder the user picked, or an empty text when the browser was cancelled.
    using DirectoryChooser = std::function<QString(QWidget* parent, const QString& title, const QString& start)>;
    // The file the user picked, or an empty text when the chooser was cancelled.
    using FileChooser = std::function<QString(QWidget* parent, const QString& startFolder)>;
    // An invalid colour means the choice was cancelled.
    using ColorChooser = std::function<QColor(QWidget* parent, const QColor& initial)>;
    using ErrorReporter = std::function<void(QWidget* parent, const QString& message)>;

    DialogRunner runDialog = RunModal;
    DirectoryChooser chooseDirectory = ChooseDirectory;
    FileChooser choosePicture = ChoosePicture;
    ColorChooser chooseColor = ChooseColor;
    ErrorReporter reportError = ReportError;

    // The interactive defaults.
    static int RunModal(QDialog& dialog);
    static QString ChooseDirectory(QWidget* parent, const QString& title, const QString& start);
    static QString ChoosePicture(QWidget* parent, const QString& startFolder);
    static QColor ChooseColor(QWidget* parent, const QColor& initial);
    static void ReportError(QWidget* parent, const QString& message);
};
