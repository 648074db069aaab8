#pragma once

#include <QDialog>

class QSpinBox;

// The dialog behind the "..." button of the tank's "Alarm Level" row: the level as a number of
// percent, 0 to 100.
class CAlarmLevelDialog : public QDialog {
public:
    CAlarmLevelDialog(int alarmLevel, QWidget* parent);
    int AlarmLevel() const;

private:
    QSpinBox* m_level;
};
