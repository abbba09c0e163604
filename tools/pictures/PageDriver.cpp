#include "tools/pictures/PageDriver.h"

#include "tests/support/Display.h"
#include "window/ShownText.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QLineEdit>
#include <QTest>

PageDriver::PageDriver(const QString& page, const QSize& size)
{
    m_window.showPage(page);
    m_window.resize(size);
    m_window.move(0, 0);
    m_window.show();
    if (!Display::activate(m_window))
        qFatal("the window does not become active");
    if (!QTest::qWaitFor([this] { return m_window.currentPage() != nullptr; }))
        qFatal("the page is not built");
    settle();
}

QWidget* PageDriver::withName(const char* context, const char* text) const
{
    const QString name = withoutMnemonic(QCoreApplication::translate(context, text));
    const auto widgets = page().findChildren<QWidget*>();
    const auto found = std::find_if(widgets.begin(), widgets.end(), [&name](QWidget* widget) {
        return widget->accessibleName() == name && widget->isVisible();
    });
    return found == widgets.end() ? nullptr : *found;
}

void PageDriver::enter(const char* name, const QString& text) const
{
    auto& field = control<QLineEdit>(name);
    field.setText(text);
    QTest::keyClick(&field, Qt::Key_Return);
    settle();
}

void PageDriver::press(const char* context, const char* text) const
{
    const QString caption = QCoreApplication::translate(context, text);
    const auto buttons = page().findChildren<QAbstractButton*>();
    for (QAbstractButton* button : buttons) {
        if (button->isVisible() && button->text().contains(caption)) {
            QTest::mouseClick(button, Qt::LeftButton);
            return settle();
        }
    }
    qFatal("no button %s", text);
}

// The first wait lets begin what a page has put off until it is painted.
void PageDriver::settle() const
{
    QTest::qWait(200);
    if (!QTest::qWaitFor([this] { return !page().isBusy(); }, 60000))
        qFatal("the page does not come to rest");
}

QImage PageDriver::picture()
{
    QTest::qWait(300); // frames that fade, columns that are laid out
    return m_window.grab().toImage();
}
