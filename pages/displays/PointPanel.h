#pragma once

#include "inspection/displays/MonitorList.h"

#include <QWidget>

#include <array>

class AnswerField;
class QFormLayout;
class QSpinBox;
struct MonitorFlag;

/// A point of the virtual desktop and what MonitorFromPoint answers for it, for each of its flags.
class PointPanel : public QWidget
{
    Q_OBJECT

public:
    explicit PointPanel(QWidget* parent = nullptr);

    /// Puts the keyboard into the first coordinate.
    void focusFirst();
    void setPoint(const QPoint& point);
    QPoint point() const;
    /// Asks anew.
    void setMonitors(const std::vector<Monitor>& monitors);
    void setPointer(const QPoint& pointer);

signals:
    /// The point, or what was answered for it, has changed.
    void asked();

private:
    QSpinBox* addCoordinate(const QString& caption, QFormLayout* form);
    AnswerField* addAnswer(const MonitorFlag& flag, QFormLayout* form);
    void ask();

    std::vector<Monitor> m_monitors;
    QSpinBox* m_x;
    QSpinBox* m_y;
    AnswerField* m_pointer;
    std::array<AnswerField*, 3> m_answers{};
};
