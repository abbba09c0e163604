#include "platform/PlatformMessageManagerImp.h"

#include <gtest/gtest.h>

namespace {

static_assert(sizeof(PlatformMessageManagerImp) == sizeof(void*), "the interface, nothing else");

class MessageManager : public testing::Test
{
protected:
    PlatformMessageManagerImp manager;
};

TEST_F(MessageManager, AnswersNoToEveryStyle)
{
    for (const UINT style : {MB_OK, MB_OKCANCEL, MB_YESNO, MB_YESNOCANCEL | MB_ICONQUESTION, ~0U})
        EXPECT_EQ(7, manager.messageBox(nullptr, L"text", L"caption", style));
    EXPECT_EQ(IDNO, manager.messageBox(nullptr, nullptr, nullptr, MB_OK));
}

TEST_F(MessageManager, PostsNothing)
{
    EXPECT_EQ(0, manager.postMessage(&manager, 0x400, ~0UL, -1L));
}

TEST_F(MessageManager, SendsNothing)
{
    EXPECT_EQ(0L, manager.sendMessage(&manager, 0x400, ~0UL, -1L));
    static_assert(sizeof(manager.sendMessage(nullptr, 0, 0, 0)) == 8, "LRESULT is 64 bits wide");
}

TEST_F(MessageManager, TaskDialogLeavesItsResultsAlone)
{
    _TASKDIALOGCONFIG config{};
    int button = 1111;
    int radioButton = 2222;
    int checked = 3333;
    EXPECT_EQ(1, manager.TaskDialogIndirect(&config, &button, &radioButton, &checked));
    EXPECT_EQ(1111, button);
    EXPECT_EQ(2222, radioButton);
    EXPECT_EQ(3333, checked);
    EXPECT_EQ(S_FALSE, manager.TaskDialogIndirect(nullptr, nullptr, nullptr, nullptr));
}

} // namespace
