#pragma once

#include "tests/pages/SmallFont.h"
#include "tests/support/WaitFor.h"
#include "window/MainWindow.h"
#include "window/Page.h"
#include "window/ShownText.h"

#include <QApplication>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

/// Drives a page of the real window. Controls are found by what an assistive tool reads out.
class PageFixture : public testing::Test
{
protected:
    void open(const QString& name)
    {
        m_window.showPage(name);
        m_window.resize(800, 600);
        m_window.show();
        ASSERT_TRUE(waitForExposed(&m_window));
        ASSERT_TRUE(waitFor([this] { return m_window.currentPage() != nullptr; }));
    }

    Page* page() { return m_window.currentPage(); }

    /// The control that is named by this caption and can be seen.
    template <typename Widget>
    Widget* control(const QString& caption)
    {
        const QString name = withoutMnemonic(caption);
        const auto all = page()->findChildren<Widget*>();
        for (Widget* widget : all) {
            if (withoutMnemonic(widget->accessibleName()) == name && widget->isVisible())
                return widget;
        }
        ADD_FAILURE() << "no control " << name.toStdString();
        return nullptr;
    }

    /// The button with that caption, mnemonic and arrows included.
    template <typename Button = QPushButton>
    Button* button(const QString& caption)
    {
        const auto all = page()->findChildren<Button*>();
        for (Button* widget : all) {
            if (widget->text() == caption && widget->isVisible())
                return widget;
        }
        ADD_FAILURE() << "no button " << caption.toStdString();
        return nullptr;
    }

    void press(const QString& caption) { QTest::mouseClick(button(caption), Qt::LeftButton); }

    std::string status() { return page()->statusText().toStdString(); }

    void waitForJob()
    {
        ASSERT_TRUE(waitFor([this] { return !page()->isBusy(); }));
    }

    SmallFont m_font;
    MainWindow m_window;
};
