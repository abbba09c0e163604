#pragma once

#include <QWidget>

class QLineEdit;

/// The line that takes a text to be found in the lines of a profile.
class ProfileFindBar : public QWidget
{
    Q_OBJECT

public:
    explicit ProfileFindBar(QWidget* parent = nullptr);

    /// Shows itself and takes the keyboard, with the text selected.
    void open();
    QString text() const;

signals:
    void nextRequested();
    void closed();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void close();

    QLineEdit* m_text;
};
