#pragma once

#include "window/PageContext.h"

#include <QGroupBox>

class QFormLayout;
class QLabel;
class QLineEdit;

/// Tries out FindWindowW.
class FindWindowPanel : public QGroupBox
{
    Q_OBJECT

public:
    explicit FindWindowPanel(PageContext& page, QWidget* parent = nullptr);

    /// Puts the keyboard into the first field.
    void focusFirst();

private:
    QLineEdit* addField(const QString& caption, QFormLayout* form);
    void find();

    PageContext& m_page;
    QLineEdit* m_className;
    QLineEdit* m_windowName;
    QLabel* m_result;
};
