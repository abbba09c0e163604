#pragma once

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

/// Answers the next message box, and keeps its text.
class MessageBoxAnswer
{
public:
    explicit MessageBoxAnswer(QMessageBox::StandardButton answer)
    {
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this, answer] {
            if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
                m_text = box->text();
                for (const QAbstractButton* button : box->buttons())
                    m_hasIcons |= !button->icon().isNull();
                m_timer.stop();
                box->button(answer)->click();
            }
        });
        m_timer.start(10);
    }

    /// Empty while none has appeared.
    QString text() const { return m_text; }
    /// Whether one of its buttons had an icon.
    bool hasIcons() const { return m_hasIcons; }

private:
    QTimer m_timer;
    QString m_text;
    bool m_hasIcons = false;
};
