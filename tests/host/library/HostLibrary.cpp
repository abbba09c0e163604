#include "tests/host/library/Slots.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDesktopWidget>
#include <QLabel>
#include <QSettings>
#include <QStackedWidget>
#include <QTimer>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <memory>

// Declared by hand, not by Quayside's headers: an outsider has only the names. The class stays
// incomplete, it only takes part in the mangled name.
class IPlatformServices;

#pragma GCC visibility push(default)
QSettings* g_globalSettings = nullptr;
void setPlatformServices(IPlatformServices* services);
void updateCStringManagerData(const void* string);
int strcpy_s(char* destination, int size, const char* source);
void* GetProcAddress(void* module, const char* name);
#pragma GCC visibility pop

namespace {

int environmentNumber(const char* name)
{
    return qEnvironmentVariableIntValue(name);
}

void report(const char* key, const QString& value)
{
    std::printf("%s=%s\n", key, value.toUtf8().constData());
}

QString geometry(const QRect& rect)
{
    return QStringLiteral("%1,%2 %3x%4")
        .arg(rect.x())
        .arg(rect.y())
        .arg(rect.width())
        .arg(rect.height());
}

// The place of the page in view and the name of the checked button.
void reportPage(const QWidget& window)
{
    for (const auto* stack : window.findChildren<QStackedWidget*>()) {
        if (!stack->inherits("QAnimationStackedWidget"))
            continue;
        for (const auto* button : window.findChildren<QAbstractButton*>()) {
            if (button->parentWidget()->inherits("PageRail") && button->isChecked())
                report("page", QStringLiteral("%1 %2").arg(QString::number(stack->currentIndex()),
                                                           button->objectName()));
        }
    }
}

void reportWindow()
{
    for (const QWidget* widget : QApplication::topLevelWidgets()) {
        if (!widget->isVisible())
            continue;
        report("class", QString::fromLatin1(widget->metaObject()->className()));
        report("title", widget->windowTitle());
        report("window", geometry(QRect(widget->pos(), widget->size())));
        reportPage(*widget);
        for (const QLabel* label : widget->findChildren<QLabel*>())
            report("label", label->text().simplified());
    }
    report("desktop", geometry(QApplication::desktop()->geometry()));
    report("cancel", QCoreApplication::translate("QPlatformTheme", "Cancel"));
    report("language", QCoreApplication::translate("HostInformation", "English",
                                                   "name of the interface's language"));
    report("scaling",
           QString::number(QCoreApplication::testAttribute(Qt::AA_EnableHighDpiScaling)));
    report("pixmaps", QString::number(QCoreApplication::testAttribute(Qt::AA_UseHighDpiPixmaps)));
}

// The window is on screen once the event loop has run for a while.
void watch(void* services)
{
    QTimer::singleShot(200, [services] {
        reportWindow();
        if (qEnvironmentVariableIsSet("HOST_CALL_SLOTS"))
            callEverySlot(services);
        std::fflush(stdout);
        if (qEnvironmentVariableIsSet("HOST_CLOSE_WINDOW"))
            QApplication::closeAllWindows();
        else
            QCoreApplication::exit(environmentNumber("HOST_STATUS"));
    });
}

} // namespace

void setPlatformServices(IPlatformServices* services)
{
    static QSettings store(qEnvironmentVariable("HOST_STORE"), QSettings::IniFormat);
    g_globalSettings = &store;
    const bool exported = dlsym(RTLD_DEFAULT, "g_PlatformServices") == services;
    report("services", exported ? QStringLiteral("exported") : QStringLiteral("unknown"));
    watch(services);
}

void updateCStringManagerData(const void* /*string*/) {}

int strcpy_s(char* destination, int size, const char* source)
{
    std::strncpy(destination, source, static_cast<std::size_t>(size));
    return 0;
}

void* GetProcAddress(void* module, const char* name)
{
    return dlsym(module, name);
}
