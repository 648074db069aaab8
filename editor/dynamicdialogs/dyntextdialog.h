#pragma once

#include <QDialog>

class CHmiDynText;
class QSpinBox;

// "Dynamic Text Property Setting": the digits with which a text binding shows its number. The
// decimal width is offered only to the types that have one. The binding is changed only when
// the user presses OK.
class CDynTextDialog : public QDialog {
    Q_OBJECT
public:
    explicit CDynTextDialog(CHmiDynText& binding, QWidget* parent = nullptr);

    void accept() override;

private:
    CHmiDynText& m_binding;
    QSpinBox* m_intWidth;
    QSpinBox* m_decWidth;
};
