#include "app/MainWindow.h"

#include "host/HostLibraries.h"

#include <QFormLayout>
#include <QLabel>
#include <QSettings>

#include <dlfcn.h>

namespace {

// The file that setPlatformServices comes from: the maker's library or the stand-in.
QString hostLibraryPath()
{
    Dl_info info{};
    if (dladdr(reinterpret_cast<void*>(&setPlatformServices), &info) == 0)
        return QString();
    return QString::fromLocal8Bit(info.dli_fname);
}

QLabel* selectable(const QString& text, QWidget* parent)
{
    auto* label = new QLabel(text, parent);
    label->setTextFormat(Qt::PlainText);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    return label;
}

} // namespace

MainWindow::MainWindow(QWidget* parent) : QWidget(parent)
{
    setWindowTitle(tr("Quayside"));
    auto* layout = new QFormLayout(this);
    layout->addRow(tr("Host library:"), selectable(hostLibraryPath(), this));
    layout->addRow(tr("Settings store:"),
                   selectable(g_globalSettings ? g_globalSettings->fileName() : tr("none"), this));
    layout->addRow(tr("Language:"),
                   selectable(tr("English", "name of the interface's language"), this));
    // A definite size: start-up centres the window before it is first shown.
    resize(sizeHint());
}
