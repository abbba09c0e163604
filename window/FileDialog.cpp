#include "window/FileDialog.h"

#include <QVariant>

FileDialog::FileDialog(QWidget* parent, const QString& title, const QByteArray& purpose)
    : QFileDialog(parent, title)
{
    setAttribute(Qt::WA_DeleteOnClose);
    const QByteArray property = "folderFor" + purpose;
    const QString folder = parent->window()->property(property.constData()).toString();
    // Set in any case: left to itself, the dialog starts where another program has left its own.
    setDirectory(folder.isEmpty() || !QDir(folder).exists() ? QDir::homePath() : folder);
    connect(this, &QDialog::accepted, this, [this, property] { remember(property); });
}

void FileDialog::startAt(const QString& path)
{
    const QFileInfo file(path);
    const QString folder = file.isDir() ? path : file.path();
    if (!path.isEmpty() && QFileInfo(folder).isDir())
        setDirectory(folder);
}

// A path that is typed does not lead the dialog itself to its folder.
void FileDialog::remember(const QByteArray& property)
{
    const QString chosen = selectedFiles().value(0);
    const QString folder = fileMode() == Directory ? chosen : QFileInfo(chosen).path();
    parentWidget()->window()->setProperty(property.constData(), folder);
}
