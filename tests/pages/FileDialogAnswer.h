#pragma once

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QTimer>

/// Answers the next file dialog as a user would: chooses a file type, types a path and presses the
/// button for it.
class FileDialogAnswer
{
public:
    explicit FileDialogAnswer(const QString& path, int type = 0) : m_path(path), m_type(type)
    {
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { look(); });
        m_timer.start(10);
    }

    /// The title of the dialog; empty while none has appeared.
    QString title() const { return m_title; }
    /// The file name that it proposed.
    QString proposed() const { return m_proposed; }
    /// The folder that it opened in.
    QString folder() const { return m_folder; }

private:
    void look()
    {
        auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        if (!dialog)
            return;
        m_timer.stop();
        m_title = dialog->windowTitle();
        auto* name = dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        m_proposed = name->text();
        m_folder = dialog->directory().absolutePath();
        dialog->findChild<QComboBox*>(QStringLiteral("fileTypeCombo"))->setCurrentIndex(m_type);
        if (m_path.isEmpty()) {
            dialog->reject();
            return;
        }
        name->setText(m_path);
        auto* buttons = dialog->findChild<QDialogButtonBox*>();
        for (QAbstractButton* button : buttons->buttons()) {
            if (buttons->buttonRole(button) == QDialogButtonBox::AcceptRole)
                button->click();
        }
    }

    QTimer m_timer;
    QString m_path;
    int m_type;
    QString m_title;
    QString m_proposed;
    QString m_folder;
};
