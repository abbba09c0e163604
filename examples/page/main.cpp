#include "SamplePage.h"

#include <QApplication>
#include <QPushButton>
#include <QTimer>

// With the argument "try" the program presses the button itself, and ends when the page has
// finished.
int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    SamplePage page;
    page.resize(320, 200);
    page.show();
    if (QApplication::arguments().contains(QStringLiteral("try"))) {
        QObject::connect(&page, &SamplePage::finished, &application, &QApplication::quit,
                         Qt::QueuedConnection);
        auto* start = page.findChild<QPushButton*>(QStringLiteral("start"));
        QTimer::singleShot(0, start, &QPushButton::click);
    }
    return QApplication::exec();
}
