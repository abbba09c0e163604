#pragma once

#include "platform/input/VirtualKeys.h"

#include <QGroupBox>

#include <vector>

class AnswerField;
class LampGrid;
class QCheckBox;
class QSpinBox;

/// The state of the virtual keys, as getKeyState tells it.
class KeyPanel : public QGroupBox
{
    Q_OBJECT

public:
    explicit KeyPanel(QWidget* parent = nullptr);
    /// Reports the keys as up that were reported as down here.
    ~KeyPanel() override;

    /// Asks for all of them.
    void refresh();

private:
    void addLamps(const std::vector<VirtualKey>& keys, int rows, const QString& name);
    void addReports(QLayout* row);
    void addReport(QLayout* row, const QString& caption, int qtKey);
    QLayout* makeQuery();
    void ask();

    std::vector<LampGrid*> m_lamps;
    std::vector<QCheckBox*> m_reports;
    QSpinBox* m_code = nullptr;
    AnswerField* m_state = nullptr;
};
