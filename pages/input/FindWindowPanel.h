#pragma once

#include "window/Page.h"

#include <QGroupBox>

class QFormLayout;
class QLabel;
class QLineEdit;

/// Tries out FindWindowW.
class FindWindowPanel : public QGroupBox
{
    Q_OBJECT

public:
    explicit FindWindowPanel(QWidget* parent = nullptr);

    /// Puts the keyboard into the first field.
    void focusFirst();

signals:
    void reported(Page::Report kind, const QString& text);

private:
    QLineEdit* addField(const QString& caption, QFormLayout* form);
    void find();

    QLineEdit* m_className;
    QLineEdit* m_windowName;
    QLabel* m_result;
};
