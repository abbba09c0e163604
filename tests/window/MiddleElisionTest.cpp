#include "window/MiddleElision.h"

#include <QStandardItemModel>

#include <gtest/gtest.h>

namespace {

struct Opened : MiddleElision
{
    using MiddleElision::initStyleOption;
};

TEST(MiddleElisionTest, LeavesBothEndsOfATextAndAllElseAsItIs)
{
    QStandardItemModel model(1, 1);
    model.setItem(0, 0, new QStandardItem("name.ext"));
    QStyleOptionViewItem option;
    option.textElideMode = Qt::ElideRight;
    Opened().initStyleOption(&option, model.index(0, 0));
    EXPECT_EQ(option.textElideMode, Qt::ElideMiddle);
    EXPECT_EQ(option.text, "name.ext");
}

} // namespace
