#pragma once

#include "pages/input/KeyLamp.h"

#include <QGroupBox>

class AnswerField;
class QCheckBox;
class QGridLayout;
class QSpinBox;
class QVBoxLayout;

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
    /// Column by column.
    void addLamps(const std::vector<VirtualKey>& keys, int rows, QVBoxLayout* layout);
    QLayout* makeReports();
    void addReport(QLayout* row, const QString& caption, int qtKey);
    QLayout* makeQuery();
    void ask();

    std::vector<KeyLamp*> m_lamps;
    std::vector<QCheckBox*> m_reports;
    QSpinBox* m_code = nullptr;
    AnswerField* m_state = nullptr;
};
