#include "platform/PlatformUserInputManagerImp.h"

#include <QApplication>
#include <QDialog>
#include <QLabel>

#include <gtest/gtest.h>

#include <array>

namespace {

class FindWindow : public testing::Test
{
protected:
    void SetUp() override { ASSERT_TRUE(QApplication::topLevelWidgets().isEmpty()); }

    HWND find(const wchar_t* className, const wchar_t* windowName)
    {
        return manager.FindWindowW(className, windowName);
    }

    PlatformUserInputManagerImp manager;
};

TEST_F(FindWindow, FindsNothingWithoutWindows)
{
    EXPECT_EQ(nullptr, find(nullptr, nullptr));
    EXPECT_EQ(nullptr, find(L"QWidget", nullptr));
    EXPECT_EQ(nullptr, find(nullptr, L"title"));
}

TEST_F(FindWindow, FindsTheClassExactly)
{
    const QLabel label;
    const QDialog dialog;
    EXPECT_EQ(&label, find(L"QLabel", nullptr));
    EXPECT_EQ(&dialog, find(L"QDialog", nullptr));
    for (const wchar_t* name :
         {L"qlabel", L"QLabe", L"QLabel ", L"QFrame", L"QWidget", L"QLabel\u0301"})
        EXPECT_EQ(nullptr, find(name, nullptr)) << name;
}

TEST_F(FindWindow, DoesNotLookAtTheTitleWhenAClassIsGiven)
{
    QLabel label;
    label.setWindowTitle(QStringLiteral("label"));
    QDialog dialog;
    dialog.setWindowTitle(QStringLiteral("dialog"));
    EXPECT_EQ(&label, find(L"QLabel", L"dialog"));
    EXPECT_EQ(nullptr, find(L"QMenu", L"dialog"));
}

TEST_F(FindWindow, TakesAnEmptyClassForAClass)
{
    QLabel label;
    label.setWindowTitle(QStringLiteral("label"));
    EXPECT_EQ(nullptr, find(L"", nullptr));
    EXPECT_EQ(nullptr, find(L"", L"label"));
}

TEST_F(FindWindow, FindsTheTitleExactly)
{
    QLabel label;
    label.setWindowTitle(QStringLiteral("A title"));
    const QDialog untitled;
    EXPECT_EQ(&label, find(nullptr, L"A title"));
    for (const wchar_t* title : {L"a title", L"A titl", L"A title ", L" A title", L"A title\u0301"})
        EXPECT_EQ(nullptr, find(nullptr, title)) << title;
}

TEST_F(FindWindow, FindsTitlesBeyondTheBmp)
{
    QLabel label;
    label.setWindowTitle(QString::fromUtf8("\xF0\x9F\x98\x80 \xE4\xB8\xAD"));
    EXPECT_EQ(&label, find(nullptr, L"\U0001F600 \u4E2D"));
    EXPECT_EQ(nullptr, find(nullptr, L"\U0001F601 \u4E2D"));
}

TEST_F(FindWindow, FindsTitlesWithTheirPlaceholderForChanges)
{
    QLabel label;
    label.setWindowTitle(QStringLiteral("doc[*]"));
    for (const bool modified : {false, true}) {
        label.setWindowModified(modified);
        EXPECT_EQ(&label, find(nullptr, L"doc[*]"));
        for (const wchar_t* shown : {L"doc", L"doc*"})
            EXPECT_EQ(nullptr, find(nullptr, shown)) << shown;
    }
}

TEST_F(FindWindow, NeverFindsAnEmptyTitle)
{
    const QLabel untitled;
    EXPECT_EQ(nullptr, find(nullptr, L""));
}

TEST_F(FindWindow, FindsTheFirstOfSeveral)
{
    std::array<QLabel, 8> labels;
    for (QLabel& label : labels)
        label.setWindowTitle(QStringLiteral("same"));
    QWidget* first = QApplication::topLevelWidgets().constFirst();
    EXPECT_EQ(first, find(nullptr, nullptr));
    EXPECT_EQ(first, find(nullptr, L"same"));
    EXPECT_EQ(first, find(L"QLabel", nullptr));
}

TEST_F(FindWindow, FindsOnlyTopLevelWidgets)
{
    QDialog dialog;
    QLabel child(&dialog);
    child.setWindowTitle(QStringLiteral("child"));
    EXPECT_EQ(nullptr, find(L"QLabel", nullptr));
    EXPECT_EQ(nullptr, find(nullptr, L"child"));
    EXPECT_EQ(&dialog, find(nullptr, nullptr));
}

TEST_F(FindWindow, FindsHiddenAndShownWindowsAlike)
{
    QLabel label;
    label.setWindowTitle(QStringLiteral("label"));
    EXPECT_EQ(&label, find(nullptr, L"label"));
    label.show();
    EXPECT_EQ(&label, find(nullptr, L"label"));
}

} // namespace
