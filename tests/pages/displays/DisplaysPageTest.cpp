#include "tests/pages/MessageBoxes.h"
#include "tests/pages/PageFixture.h"

#include "pages/displays/MonitorMap.h"
#include "platform/PlatformServicesImp.h"
#include "tests/platform/graphics/VirtualScreen.h"
#include "tests/support/TimerEvents.h"
#include "tests/support/WaitFor.h"

#include <QLabel>
#include <QProxyStyle>
#include <QScreen>
#include <QScrollBar>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTabWidget>
#include <QTableView>

namespace {

IPlatformResourceManager* service()
{
    return g_PlatformServices.resourceManager();
}

QString cell(const QTableView& table, int row, int column)
{
    return table.model()->index(row, column).data().toString();
}

class DisplaysPageTest : public PageFixture
{
protected:
    void SetUp() override { open("displays"); }

    MonitorMap* map() { return page()->findChild<MonitorMap*>(); }
    void chooseTab(int index) { page()->findChild<QTabWidget*>()->setCurrentIndex(index); }

    void click(const QPoint& desktop)
    {
        QTest::mouseClick(map(), Qt::LeftButton, Qt::NoModifier, map()->toMap(desktop).toPoint());
    }

    std::string answer(const QString& flag)
    {
        return control<QLineEdit>(flag)->text().toStdString();
    }
};

TEST_F(DisplaysPageTest, ListsTheMonitorAsTheServiceDescribesIt)
{
    MONITORINFO info{};
    ASSERT_EQ(service()->GetMonitorInfoW(QGuiApplication::primaryScreen(), &info), 1);
    const auto* table = control<QTableView>("Monitors");
    ASSERT_EQ(table->model()->rowCount(), 1);
    const auto edges = [](const RECT& rect) {
        return QStringLiteral("%1, %2, %3, %4")
            .arg(rect.left)
            .arg(rect.top)
            .arg(rect.right)
            .arg(rect.bottom);
    };
    EXPECT_EQ(cell(*table, 0, 1), edges(info.rcMonitor));
    EXPECT_EQ(cell(*table, 0, 2), edges(info.rcWork));
    EXPECT_EQ(cell(*table, 0, 3), "1 (primary)");
    EXPECT_EQ(cell(*table, 0, 4), handleText(QGuiApplication::primaryScreen()));
}

TEST_F(DisplaysPageTest, TheHeadersOfTheEdgesSayWhatTheyAre)
{
    const QAbstractItemModel* model = control<QTableView>("Monitors")->model();
    const auto tip = [model](int column) {
        return model->headerData(column, Qt::Horizontal, Qt::ToolTipRole).toString();
    };
    EXPECT_TRUE(tip(1).startsWith("Left, top, right, bottom."));
    EXPECT_EQ(tip(2), tip(1));
    EXPECT_EQ(tip(0), QString());
}

TEST_F(DisplaysPageTest, AClickAsksForThePointUnderIt)
{
    click(QGuiApplication::primaryScreen()->geometry().center());
    for (const char* flag : {"DEFAULTTONULL", "DEFAULTTOPRIMARY", "DEFAULTTONEAREST"})
        EXPECT_EQ(answer(flag), "Monitor 1") << flag;
}

TEST_F(DisplaysPageTest, AClickBesideTheMonitorsShowsHowTheFlagsDiffer)
{
    click(QGuiApplication::primaryScreen()->geometry().bottomRight() + QPoint(40, 0));
    EXPECT_EQ(answer("DEFAULTTONULL"), "null");
    EXPECT_EQ(answer("DEFAULTTOPRIMARY"), "Monitor 1");
    EXPECT_EQ(answer("DEFAULTTONEAREST"), "Monitor 1");
}

TEST_F(DisplaysPageTest, TheKeyboardMovesThePoint)
{
    control<QSpinBox>("Point X:")->setValue(100);
    control<QSpinBox>("Point Y:")->setValue(100);
    QTest::keyClick(map(), Qt::Key_Right);
    QTest::keyClick(map(), Qt::Key_Down, Qt::ControlModifier);
    QTest::keyClick(map(), Qt::Key_Up, Qt::ShiftModifier);
    EXPECT_EQ(control<QSpinBox>("Point X:")->value(), 120);
    EXPECT_EQ(control<QSpinBox>("Point Y:")->value(), 299);
    EXPECT_EQ(map()->point(), QPoint(120, 299));
    for (int i = 0; i < 2; ++i)
        QTest::keyClick(map(), Qt::Key_Left, Qt::ControlModifier);
    EXPECT_EQ(answer("DEFAULTTONULL"), "null");
}

TEST_F(DisplaysPageTest, TypedCoordinatesMoveThePointOfTheMap)
{
    control<QSpinBox>("Point X:")->setValue(-50);
    EXPECT_EQ(map()->point().x(), -50);
    EXPECT_EQ(answer("DEFAULTTONULL"), "null");
}

TEST_F(DisplaysPageTest, FindPutsTheKeyboardIntoThePoint)
{
    QTest::keyClick(&m_window, Qt::Key_F, Qt::ControlModifier);
    EXPECT_EQ(QApplication::focusWidget(), control<QSpinBox>("Point X:"));
}

TEST_F(DisplaysPageTest, FollowsThePointer)
{
    QCursor::setPos(123, 45);
    EXPECT_TRUE(waitFor([this] { return answer("Pointer") == "123, 45"; }));
    QTest::keyClick(map(), Qt::Key_Home);
    EXPECT_EQ(map()->point(), QPoint(123, 45));
}

TEST_F(DisplaysPageTest, ShowsTheMetricsThatAreAnsweredAndThoseThatAreNot)
{
    chooseTab(1);
    const auto* table = control<QTableView>("System metrics");
    EXPECT_EQ(cell(*table, 0, 1), "SM_CXFULLSCREEN");
    EXPECT_EQ(cell(*table, 0, 2), QString::number(service()->GetSystemMetrics(SM_CXFULLSCREEN)));
    EXPECT_EQ(cell(*table, 1, 2), QString::number(service()->GetSystemMetrics(SM_CYFULLSCREEN)));
    for (int row = 2; row < table->model()->rowCount(); ++row)
        EXPECT_EQ(cell(*table, row, 2), "0 (not provided)");
    control<QSpinBox>("Index of a metric")->setValue(SM_CYFULLSCREEN);
    EXPECT_EQ(answer("Value"), "GetSystemMetrics answers " +
                                   std::to_string(service()->GetSystemMetrics(SM_CYFULLSCREEN)));
}

TEST_F(DisplaysPageTest, KeepsTheSelectedMonitorAndMetric)
{
    auto* monitors = control<QTableView>("Monitors");
    monitors->selectRow(0);
    page()->refresh();
    EXPECT_TRUE(monitors->selectionModel()->isRowSelected(0, {}));
    chooseTab(1);
    auto* metrics = control<QTableView>("System metrics");
    metrics->selectRow(2);
    QSignalSpy resets(metrics->model(), &QAbstractItemModel::modelReset);
    page()->refresh();
    EXPECT_EQ(resets.size(), 1);
    EXPECT_EQ(metrics->currentIndex().row(), 2);
    EXPECT_TRUE(metrics->selectionModel()->isRowSelected(2, {}));
}

class HandlePanelTest : public DisplaysPageTest
{
protected:
    void SetUp() override
    {
        DisplaysPageTest::SetUp();
        chooseTab(2);
        waitForJob();
    }

    void TearDown() override
    {
        for (void* handle : m_made)
            service()->deleteObject(handle);
    }

    void* made(void* handle)
    {
        m_made.push_back(handle);
        return handle;
    }

    QStringList rows()
    {
        QStringList list;
        const QAbstractItemModel* model = control<QTableView>("Graphics handles")->model();
        for (int row = 0; row < model->rowCount(); ++row) {
            QStringList cells;
            for (int column = 0; column < model->columnCount(); ++column)
                cells += model->index(row, column).data().toString();
            list += cells.join(" | ");
        }
        return list;
    }

    void refresh()
    {
        page()->refresh();
        waitForJob();
    }

    std::vector<void*> m_made;
};

TEST_F(HandlePanelTest, ListsTheHandlesThatHostLibrariesMade)
{
    made(service()->createImage(0, 12, 34));
    made(service()->createBrush(0x00C0FFEE));
    refresh();
    EXPECT_EQ(rows(), QStringList({"0x1 | 0 (image) | 12 \u00d7 34, 32 bits a pixel, format 6",
                                   "0x40001 | 4 (brush) | colour 0x00c0ffee"}));
}

TEST_F(HandlePanelTest, ShowsWhatAHostLibraryMakesMeanwhile)
{
    made(service()->createBrush(1));
    made(service()->createBrush(2));
    EXPECT_TRUE(waitFor([this] { return rows().size() == 2; }));
    control<QTableView>("Graphics handles")->selectRow(1);
    made(service()->createImage(0, 3, 3));
    EXPECT_TRUE(waitFor([this] { return rows().size() == 3; }));
    EXPECT_EQ(control<QTableView>("Graphics handles")->currentIndex().row(), 2) << "the same one";
    service()->deleteObject(m_made.front());
    EXPECT_TRUE(waitFor([this] { return rows().size() == 2; }));
}

TEST_F(HandlePanelTest, KeepsItsPlaceWhereNothingChanges)
{
    for (int i = 0; i < 100; ++i)
        made(service()->createBrush(1));
    refresh();
    auto* view = control<QTableView>("Graphics handles");
    QSignalSpy resets(view->model(), &QAbstractItemModel::modelReset);
    const TimerEvents looks(page());
    EXPECT_TRUE(waitFor([&] { return looks.count() >= 2; }));
    EXPECT_EQ(resets.size(), 0);
    view->verticalScrollBar()->setValue(40);
    made(service()->createBrush(2));
    EXPECT_TRUE(waitFor([this] { return rows().size() == 101; }));
    EXPECT_EQ(view->verticalScrollBar()->value(), 40);
}

TEST_F(HandlePanelTest, SaysHowToGetAHandleWhenThereIsNone)
{
    QTableView* view = control<QTableView>("Graphics handles");
    const auto* hint = view->viewport()->findChild<QLabel*>();
    ASSERT_NE(hint, nullptr);
    EXPECT_TRUE(hint->isVisible());
    EXPECT_TRUE(hint->text().contains("createImage"));
    EXPECT_TRUE(view->viewport()->rect().contains(hint->geometry()));
    EXPECT_GE(hint->height(), hint->heightForWidth(hint->width()));
    const QImage image = view->viewport()->grab(hint->geometry()).toImage();
    QImage blank = image;
    blank.fill(image.pixel(0, 0));
    EXPECT_NE(image, blank) << "nothing is painted";
    made(service()->createBrush(1));
    refresh();
    EXPECT_FALSE(hint->isVisible());
}

TEST_F(HandlePanelTest, ListsABrushOfColourZero)
{
    made(service()->createBrush(0));
    refresh();
    EXPECT_EQ(rows(), QStringList("0x40001 | 4 (brush) | colour 0x00000000"));
    for (const QLabel* label : page()->findChildren<QLabel*>())
        EXPECT_FALSE(label->text().contains("colour 0")) << label->text().toStdString();
}

TEST_F(HandlePanelTest, ChoosesTheHandleThatWasMadeLast)
{
    made(service()->createImage(0, 1, 1));
    press("New &brush");
    made(reinterpret_cast<void*>(0x40001));
    EXPECT_EQ(status(), "Made handle 0x40001.");
    EXPECT_EQ(control<QTableView>("Graphics handles")->currentIndex().row(), 1);
}

TEST_F(HandlePanelTest, FindsTheLastNumberOfAType)
{
    for (int i = 0; i < 65535; ++i)
        made(service()->createBrush(1));
    refresh();
    EXPECT_EQ(rows().size(), 65535);
    EXPECT_EQ(rows().last(), "0x4ffff | 4 (brush) | colour 0x00000001");
    press("New &brush");
    EXPECT_EQ(status(), "The service made no handle: all 65,535 numbers are taken.");
    waitForJob();
}

TEST_F(HandlePanelTest, MakesAndDeletesAnImage)
{
    control<QSpinBox>("Width")->setValue(7);
    control<QSpinBox>("Height")->setValue(5);
    press("&New image");
    waitForJob();
    made(reinterpret_cast<void*>(1));
    EXPECT_EQ(rows(), QStringList({"0x1 | 0 (image) | 7 \u00d7 5, 32 bits a pixel, format 6"}));
    const MessageBoxAnswer yes(QMessageBox::Yes);
    control<QTableView>("Graphics handles")->setFocus();
    QTest::keyClick(control<QTableView>("Graphics handles"), Qt::Key_Delete);
    waitForJob();
    EXPECT_TRUE(yes.text().contains("0x1"));
    EXPECT_EQ(rows(), QStringList());
    EXPECT_EQ(service()->fromHandle(reinterpret_cast<void*>(1), IPlatformResourceManager::ObjImage),
              nullptr);
}

TEST_F(HandlePanelTest, ANoKeepsTheHandle)
{
    made(service()->createImage(0, 1, 1));
    refresh();
    control<QTableView>("Graphics handles")->selectRow(0);
    const MessageBoxAnswer no(QMessageBox::No);
    press("Dele&te...");
    EXPECT_FALSE(no.text().isEmpty());
    EXPECT_EQ(rows().size(), 1);
}

// As some desktops have it.
class StyleWithDialogIcons : public QProxyStyle
{
public:
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* data) const override
    {
        return hint == SH_DialogButtonBox_ButtonsHaveIcons
                   ? 1
                   : QProxyStyle::styleHint(hint, option, widget, data);
    }
};

TEST_F(HandlePanelTest, AsksWithButtonsAsPlainAsThoseOfTheWindow)
{
    made(service()->createImage(0, 1, 1));
    refresh();
    control<QTableView>("Graphics handles")->selectRow(0);
    const QString former = QApplication::style()->objectName();
    QApplication::setStyle(new StyleWithDialogIcons);
    const MessageBoxAnswer no(QMessageBox::No);
    press("Dele&te...");
    QApplication::setStyle(former);
    EXPECT_FALSE(no.text().isEmpty());
    EXPECT_FALSE(no.hasIcons());
}

TEST_F(HandlePanelTest, RefusesAColourThatIsNoHexadecimalNumber)
{
    for (const char* color : {"", "red", "0x123456789", "-1"}) {
        control<QLineEdit>("Colour of a brush, in hexadecimal")->setText(color);
        press("New &brush");
        EXPECT_EQ(status(), "The colour must be a hexadecimal number of up to 8 digits, such as "
                            "0x0000FF.")
            << color;
        refresh();
        EXPECT_EQ(rows(), QStringList()) << color;
    }
}

TEST_F(HandlePanelTest, RefusesToDeleteWhenNothingIsChosen)
{
    press("Dele&te...");
    EXPECT_EQ(status(), "Choose a handle first.");
}

TEST(MonitorMapTest, MapsSeveralMonitorsToScaleAndBack)
{
    MonitorMap map;
    map.resize(400, 300);
    int handles[2];
    map.setMonitors(
        {{&handles[0], QRect(-1280, -200, 1280, 1024), QRect(-1280, -200, 1280, 990), 0},
         {&handles[1], QRect(0, 0, 1920, 1080), QRect(0, 30, 1920, 1050), 1}});
    for (const QPoint& point : {QPoint(-1280, -200), QPoint(0, 0), QPoint(1919, 1079)}) {
        EXPECT_EQ(map.toDesktop(map.toMap(QPointF(point) + QPointF(0.5, 0.5))), point);
        EXPECT_TRUE(map.rect().contains(map.toMap(point).toPoint()));
    }
    const QPointF size = map.toMap({1920, 1080}) - map.toMap({0, 0});
    EXPECT_NEAR(size.x() / size.y(), 1920.0 / 1080.0, 1e-9);
}

TEST(MonitorMapTest, StandsWithoutAnyMonitor)
{
    MonitorMap map;
    map.resize(400, 300);
    map.setMonitors({});
    EXPECT_FALSE(map.grab().isNull());
}

TEST_F(DisplaysPageTest, FollowsMonitorsThatComeAndGo)
{
    const auto* table = control<QTableView>("Monitors");
    const QRect first = QGuiApplication::primaryScreen()->geometry();
    {
        const VirtualScreen second(QRect(first.right() + 101, 0, 640, 480));
        ASSERT_TRUE(waitFor([table] { return table->model()->rowCount() == 2; }));
        control<QSpinBox>("Point X:")->setValue(first.right() + 200);
        control<QSpinBox>("Point Y:")->setValue(100);
        for (const char* flag : {"DEFAULTTONULL", "DEFAULTTOPRIMARY", "DEFAULTTONEAREST"})
            EXPECT_EQ(answer(flag), "Monitor 2") << flag;
        control<QSpinBox>("Point X:")->setValue(first.right() + 90); // between them
        EXPECT_EQ(answer("DEFAULTTONULL"), "null");
        EXPECT_EQ(answer("DEFAULTTOPRIMARY"), "Monitor 1");
        EXPECT_EQ(answer("DEFAULTTONEAREST"), "Monitor 2");
    }
    EXPECT_TRUE(waitFor([table] { return table->model()->rowCount() == 1; }));
}

} // namespace
