#pragma once

#include "recoverystore.h"

#include <QDialog>

class QAbstractButton;
class QPushButton;

// What the user chose for the windows that editors left behind unsaved.
enum class RecoveryAnswer {
    Restore, // open them again, modified
    Discard, // remove the copies for good
    Later,   // keep the copies and ask again at the next start
};

// Lists the windows that editors left behind unsaved, with their window files and the time of
// their copies, and asks what to do with them. Closing the dialog decides nothing.
class CRecoveryDialog : public QDialog {
    Q_OBJECT
public:
    CRecoveryDialog(const QList<RecoveryCopy>& copies, QWidget* parent = nullptr);

    RecoveryAnswer Answer() const { return m_answer; }

private:
    void Choose(QAbstractButton* button);

    QPushButton* m_restore = nullptr;
    QPushButton* m_discard = nullptr;
    RecoveryAnswer m_answer = RecoveryAnswer::Later;
};
