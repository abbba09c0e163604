#pragma once

#include <QFileDialog>

/// A file dialog that opens in the folder where the last one for the same purpose was left, for as
/// long as the window is open; a first one opens in the user's home. It deletes itself when it is
/// closed: use it with `open` and its signal `fileSelected`.
class FileDialog : public QFileDialog
{
    Q_OBJECT

public:
    /// `purpose` is a word that is not shown, such as "log".
    FileDialog(QWidget* parent, const QString& title, const QByteArray& purpose);

    /// Opens in the folder of this file, or in this folder, where there is one.
    void startAt(const QString& path);

private:
    void remember(const QByteArray& property);
};
