#include "window/ElidedTips.h"

#include "tests/support/MessageGuard.h"
#include "tests/support/WaitFor.h"
#include "window/RecordsModel.h"
#include "window/ViewLook.h"

#include <QApplication>
#include <QHeaderView>
#include <QHelpEvent>
#include <QTableView>
#include <QToolTip>

#include <gtest/gtest.h>

namespace {

const QString longText = QStringLiteral("a text that is wider than the column that it stands in");

class ElidedTipsTest : public testing::Test
{
protected:
    ElidedTipsTest()
    {
        m_table.setModel(&m_model);
        arrangeTable(m_table);
        m_table.resize(400, 200);
        m_table.show();
        EXPECT_TRUE(waitForExposed(&m_table));
        m_table.setColumnWidth(0, 80);
        m_table.setColumnWidth(1, 80);
    }
    ~ElidedTipsTest() override { QToolTip::hideText(); }

    static std::vector<RecordColumn<QString>> columns()
    {
        const auto text = [](const QString& record) { return record; };
        const auto look = [](const QString& record, int role) {
            return role == Qt::ToolTipRole ? QVariant(QStringLiteral("about ") + record.left(6))
                                           : QVariant();
        };
        return {{"Plain", text}, {"A title that is long, too", text, look, "What it says"}};
    }

    static std::string askedAt(QWidget* viewport, const QPoint& place)
    {
        QToolTip::hideText();
        QHelpEvent event(QEvent::ToolTip, place, viewport->mapToGlobal(place));
        QApplication::sendEvent(viewport, &event);
        return QToolTip::text().toStdString();
    }
    std::string tip(int column)
    {
        const QRect cell = m_table.visualRect(m_model.index(0, column));
        return askedAt(m_table.viewport(), cell.topLeft() + QPoint(5, 5));
    }
    std::string titleTip(int column)
    {
        const QHeaderView& header = *m_table.horizontalHeader();
        return askedAt(header.viewport(), {header.sectionViewportPosition(column) + 5, 5});
    }

    const ExpectMessage m_ofTips{QStringLiteral("This plugin does not support raise()")};
    RecordsModel<QString> m_model{columns()};
    QTableView m_table;
};

TEST_F(ElidedTipsTest, ShowTheWholeTextBeforeWhatTheModelSays)
{
    m_model.setRecords({longText});
    EXPECT_EQ(tip(1), longText.toStdString() + "\nabout a text");
}

TEST_F(ElidedTipsTest, SayNothingTwice)
{
    m_model.setRecords({longText});
    EXPECT_EQ(tip(0), longText.toStdString());
}

TEST_F(ElidedTipsTest, LeaveWhatFitsToTheModel)
{
    m_model.setRecords({"short"});
    EXPECT_EQ(tip(0), "short");
    EXPECT_EQ(tip(1), "about short");
}

TEST_F(ElidedTipsTest, ShowMarkupAsItStands)
{
    m_model.setRecords({"<b>" + longText + "</b>"});
    EXPECT_NE(tip(0).find("&lt;b&gt;"), std::string::npos);
    const std::string both = tip(1);
    EXPECT_NE(both.find("&lt;b&gt;"), std::string::npos);
    EXPECT_NE(both.find("about"), std::string::npos);
}

TEST_F(ElidedTipsTest, ShowTheWholeOfATitle)
{
    EXPECT_EQ(titleTip(0), "");
    m_table.setColumnWidth(0, 350);
    EXPECT_EQ(titleTip(1), "A title that is long, too\nWhat it says");
}

} // namespace
