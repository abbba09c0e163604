#include "host/HostLibraries.h"
#include "inspection/registry/RegistryImportJob.h"
#include "inspection/registry/RegistryListing.h"
#include "inspection/registry/RegistryPath.h"
#include "inspection/registry/RegistrySearchJob.h"
#include "pages/registry/FindPane.h"
#include "pages/registry/ImportDialog.h"
#include "pages/registry/RegistryTreeModel.h"
#include "pages/registry/RegistryValueModel.h"
#include "platform/PlatformServicesImp.h"
#include "tests/inspection/registry/RegistryTest.h"
#include "tests/support/WaitFor.h"
#include "window/Page.h"

#include <QAbstractItemModelTester>
#include <QLineEdit>
#include <QSettings>
#include <QTableView>
#include <QTest>

namespace {

using Model = RegistryValueModel;

class RegistryModels : public RegistryTest
{
protected:
    QStringList below(const QString& path)
    {
        m_tree.refresh();
        const QModelIndex parent = m_tree.find(path);
        while (m_tree.canFetchMore(parent))
            m_tree.fetchMore(parent);
        QStringList names;
        for (int row = 0; row < m_tree.rowCount(parent); ++row)
            names.append(m_tree.index(row, 0, parent).data().toString());
        return names;
    }

    QString cell(int row, Model::Column column) const
    {
        return m_values.index(row, column).data().toString();
    }

    QString rows(Model::Column column) const
    {
        QStringList texts;
        for (int row = 0; row < m_values.rowCount(); ++row)
            texts.append(cell(row, column));
        return texts.join('|');
    }

    RegistryTreeModel m_tree;
    Model m_values;
};

TEST_F(RegistryModels, ListTheSameKeysAsTheService)
{
    for (const char* entry : {"b/x", "a/b/c", "a/d", "e", "f/g/h"})
        store(entry, "1$1");
    store("f/created", QVariant());
    m_tree.refresh();
    wchar_t name[16] = {};
    QStringList listed;
    IPlatformRegisterManager* manager = g_PlatformServices.registerManager();
    for (unsigned int i = 0; manager->RegEnumKeyW(HKEY_USERS, i, name, 16) == ERROR_SUCCESS; ++i)
        listed.append(QString::fromWCharArray(name, 1));
    EXPECT_EQ(listRegistryKey(m_tree.names(), "").keys, listed);
    EXPECT_EQ(listRegistryKey(m_tree.names(), "").values, QStringList("e"));
    EXPECT_EQ(listRegistryKey(m_tree.names(), "f").createdKeys, QStringList("created"));
}

TEST_F(RegistryModels, ReadKeysLevelByLevel)
{
    store("a/b/c/v", "1$1");
    store("a/v", "1$1");
    m_tree.refresh();
    const QModelIndex root = m_tree.rootItem();
    EXPECT_TRUE(m_tree.hasChildren(root));
    EXPECT_EQ(m_tree.rowCount(root), 0);
    EXPECT_EQ(below(""), QStringList("a"));
    EXPECT_EQ(below("a"), QStringList("b"));
    EXPECT_EQ(below("a/b"), QStringList("c"));
    EXPECT_FALSE(m_tree.hasChildren(m_tree.find("a/b/c")));
    EXPECT_EQ(m_tree.path(m_tree.find("a/b/c")), "a/b/c");
}

TEST_F(RegistryModels, ShowACreatedKeyBeforeItHoldsAnything)
{
    store("a/v", "1$1");
    store("a/new", QVariant());
    EXPECT_EQ(below("a"), QStringList("new"));
    EXPECT_TRUE(m_tree.find("a/new").data(Qt::FontRole).isValid());
    EXPECT_TRUE(m_tree.find("a/new").data(Qt::ToolTipRole).toString().contains("not listed"));
    store("a/new/v", "1$1");
    m_tree.refresh();
    EXPECT_EQ(below("a"), QStringList("new"));
    EXPECT_FALSE(m_tree.find("a/new").data(Qt::FontRole).isValid());
}

TEST_F(RegistryModels, FindTheNearestKeyAboveOneThatIsMissing)
{
    store("a/b/v", "1$1");
    m_tree.refresh();
    EXPECT_EQ(m_tree.path(m_tree.find("a/b/x/y")), "a/b");
    EXPECT_EQ(m_tree.path(m_tree.find("zzz")), "");
}

TEST_F(RegistryModels, KeepItemsInPlaceWhenTheStoreChanges)
{
    for (const char* entry : {"b/v", "d/v", "d/e/v", "f/v"})
        store(entry, "1$1");
    below("");
    below("d");
    const QPersistentModelIndex kept = m_tree.find("d/e");
    for (const char* entry : {"a/v", "c/v", "e/v", "g/v", "d/f/v"})
        store(entry, "1$1");
    store("b/v", "1$1");
    m_tree.refresh();
    EXPECT_TRUE(kept.isValid());
    EXPECT_EQ(m_tree.path(kept), "d/e");
    EXPECT_EQ(below(""), QStringList({"a", "b", "c", "d", "e", "f", "g"}));
    EXPECT_EQ(below("d"), QStringList({"e", "f"}));
}

TEST_F(RegistryModels, KeepTheContractOfModels)
{
    const QAbstractItemModelTester treeTester(&m_tree);
    const QAbstractItemModelTester valueTester(&m_values);
    for (int i = 0; i < 2100; ++i)
        store(QString("k%1/v").arg(i, 4, 10, QChar('0')), "1$1");
    below("");
    m_values.setPath("k0001", m_tree.names());
    store("k0000/sub/v", "1$1");
    store("k00005/v", "1$1");
    m_tree.refresh();
    m_values.setPath("k0000", m_tree.names());
    EXPECT_EQ(below("").size(), 2101);
    EXPECT_EQ(below("k0000"), QStringList("sub"));
}

TEST_F(RegistryModels, ShowVeryManyKeysInBatches)
{
    for (int i = 0; i < 4500; ++i)
        store(QString("k%1/v").arg(i, 5, 10, QChar('0')), "1$1");
    m_tree.refresh();
    const QModelIndex root = m_tree.rootItem();
    m_tree.fetchMore(root);
    EXPECT_EQ(m_tree.rowCount(root), 2000);
    EXPECT_EQ(m_tree.path(m_tree.find("k04000")), "k04000");
    EXPECT_EQ(m_tree.rowCount(root), 4001);
    store("k00000a/v", "1$1");
    store("k09999/v", "1$1");
    m_tree.refresh();
    EXPECT_EQ(m_tree.rowCount(root), 4002);
    EXPECT_EQ(below("").size(), 4502);
}

TEST_F(RegistryModels, SayAboveTheStoredTextThatItIsRaw)
{
    const auto tip = [this](int column) {
        return m_values.headerData(column, Qt::Horizontal, Qt::ToolTipRole)
            .toString()
            .toStdString();
    };
    EXPECT_EQ(tip(RegistryValueModel::Raw),
              "Raw: the text in the store, which no host library sees");
    EXPECT_EQ(tip(RegistryValueModel::Data), "");
}

struct ValueRow
{
    QVariant entry;
    const char* type;
    const char* data;
    const char* raw;
};

TEST_F(RegistryModels, ShowAValueAsTheServiceReadsIt)
{
    const ValueRow table[] = {
        {"1$42", "REG_DWORD", "42 (0x0000002a)", "1$42"},
        {"0$-1", "REG_DWORD", "4294967295 (0xffffffff)", "0$-1"},
        {"2$255", "REG_QWORD", "255 (0xff)", "2$255"},
        {"4$00ff", "REG_BINARY", "00 ff", "4$00ff"},
        {"5$", "REG_SZ", "", "5$"},
        {"5$a$b", "REG_SZ", "a$b", "5$a$b"},
        {"1$4294967295", "REG_DWORD", "0 (0x00000000)", "1$4294967295"},
        {"3$1", "unreadable", "Tag 3 is refused", "3$1"},
        {"x$1", "unreadable", "Tag \"x\" is refused: it is no number, or too large a one", "x$1"},
        {"1x$5", "unreadable", "Tag \"1x\" is refused: it is no number, or too large a one",
         "1x$5"},
        {"4294967297$7", "unreadable",
         "Tag \"4294967297\" is refused: it is no number, or too large a one", "4294967297$7"},
        {"plain", "unreadable", "No type tag before a \"$\"", "plain"},
        {QVariant(), "unreadable", "No value: the mark of a key that was created here", ""},
        {QStringList({"5$a", "b"}), "unreadable", "A list: the file has a comma without quotes",
         "5$a, b"},
    };
    for (const ValueRow& row : table) {
        store("k/v", row.entry);
        m_values.setPath("k", m_tree.names());
        ASSERT_EQ(m_values.rowCount(), 1);
        EXPECT_EQ(cell(0, Model::Name).toStdString(), "v");
        EXPECT_EQ(cell(0, Model::Type).toStdString(), row.type);
        EXPECT_EQ(cell(0, Model::Data).toStdString(), row.data);
        EXPECT_EQ(cell(0, Model::Raw).toStdString(), row.raw);
    }
}

TEST_F(RegistryModels, KeepCharactersBeyondTheBasicPlane)
{
    const QString text = QString::fromUcs4(U"\u6e2f\U0001F600", 2);
    store("k/v", "5$" + text);
    m_values.setPath("k", m_tree.names());
    EXPECT_EQ(cell(0, Model::Data), text);
}

TEST_F(RegistryModels, ShowAValueUnderARootWhereItIsAskedFor)
{
    store("X/X", "5$kept below");
    store("X/other", "5$not here");
    m_values.setPath("", *RegistryIndex::read());
    ASSERT_EQ(m_values.rowCount(), 1);
    EXPECT_EQ(cell(0, Model::Name).toStdString(), "X");
    EXPECT_EQ(cell(0, Model::Data).toStdString(), "kept below");
    EXPECT_EQ(m_values.record(0).place(), ListedValue::Place::UnderRoot);
    EXPECT_TRUE(m_values.record(0).remark().contains("kept in the key \"X\""));
}

TEST_F(RegistryModels, ShowAnEntryOfTheRootAsListedOnly)
{
    store("loose", "1$7");
    m_values.setPath("", *RegistryIndex::read());
    ASSERT_EQ(m_values.rowCount(), 1);
    EXPECT_EQ(m_values.record(0).place(), ListedValue::Place::ListedAtRoot);
    EXPECT_EQ(cell(0, Model::Type).toStdString(), "REG_DWORD");
    EXPECT_EQ(cell(0, Model::Data).toStdString(), "7 (0x00000007)");
    EXPECT_TRUE(m_values.record(0).remark().contains("Only listed"));
}

TEST_F(RegistryModels, TellNameAndPlaceWithoutReading)
{
    store("X/X", "5$old");
    store("loose", "5$old");
    m_tree.refresh();
    m_values.setPath("", m_tree.names());
    ASSERT_EQ(m_values.rowCount(), 2);
    EXPECT_EQ(m_values.record(0).name().toStdString(), "X");
    EXPECT_EQ(m_values.record(0).place(), ListedValue::Place::UnderRoot);
    EXPECT_EQ(m_values.record(1).name().toStdString(), "loose");
    EXPECT_EQ(m_values.record(1).place(), ListedValue::Place::ListedAtRoot);
    store("X/X", "5$new"); // what was read before would still be shown
    EXPECT_EQ(cell(0, Model::Data).toStdString(), "new");
}

TEST_F(RegistryModels, AWalkListsTheStoreInItsFirstStep)
{
    RegistryWalk walk("");
    store("A/v", "1$1");
    EXPECT_EQ(walk.next(), RegistryWalk::Step::Key);
    EXPECT_EQ(walk.next(), RegistryWalk::Step::Key);
    EXPECT_EQ(walk.path().toStdString(), "A");
}

TEST_F(RegistryModels, TellAValueThatHasGoneFromTheMarkOfAKey)
{
    store("k/mark", QVariant());
    store("k/v", "1$1");
    m_values.setPath("k", m_tree.names());
    g_globalSettings->remove("k/v");
    EXPECT_TRUE(cell(0, Model::Data).contains("mark of a key"))
        << cell(0, Model::Data).toStdString();
    EXPECT_EQ(cell(1, Model::Data).toStdString(), "No longer there");
}

constexpr char markup[] = "<b>bold</b>";
constexpr char escaped[] = "<span>&lt;b&gt;bold&lt;/b&gt;</span>";

TEST_F(RegistryModels, ShowMarkupInToolTipsAsItStands)
{
    store("A/v", QString("5$") + markup);
    m_values.setPath("A", m_tree.names());
    const auto tip = [](const QAbstractItemModel& model, int column) {
        return model.index(0, column).data(Qt::ToolTipRole).toString().toStdString();
    };
    EXPECT_EQ(tip(m_values, Model::Data), escaped);
    EXPECT_EQ(tip(m_values, Model::Name), "v");
    Page page;
    FindPane pane(page);
    pane.findChild<QLineEdit*>()->setText("bold");
    QTest::keyClick(pane.findChild<QLineEdit*>(), Qt::Key_Return);
    ASSERT_TRUE(waitForJob(page));
    EXPECT_EQ(tip(*pane.findChild<QTableView*>()->model(), 2), escaped);
    RegistryImportJob import(
        "Windows Registry Editor Version 5.00\n[HKEY_USERS\\A]\n\"<b>bold</b>\"=-\n");
    while (import.step()) {
    }
    const ImportDialog dialog("in.reg", import.plan(), nullptr);
    const QModelIndex name = dialog.findChild<QTableView*>()->model()->index(1, 2);
    EXPECT_EQ(name.data(Qt::ToolTipRole).toString().toStdString(), escaped);
}

TEST_F(RegistryModels, SearchNamesAndDataWithoutRegardToCase)
{
    store("Vendor/Product/Path", "5$/opt/Blue");
    store("Blue/v", "1$1");
    store("Other/blueish", "4$00");
    store("Other/none", "5$red");
    store("Other/broken", "blue");
    const auto found = [](bool names, bool data) {
        RegistrySearchJob search({"BLUE", names, names, data});
        while (search.step()) {
        }
        QStringList hits;
        for (const auto& hit : search.hits())
            hits.append(RegistryPath::join(hit.path, hit.name));
        return hits;
    };
    EXPECT_EQ(found(true, true),
              QStringList({"Blue/", "Other/blueish", "Other/broken", "Vendor/Product/Path"}));
    EXPECT_EQ(found(true, false), QStringList({"Blue/", "Other/blueish"}));
    EXPECT_EQ(found(false, true), QStringList({"Other/broken", "Vendor/Product/Path"}));
}

TEST_F(RegistryModels, SearchKeysNamesAndDataEachByItself)
{
    store("blue/v", "1$1");
    store("K/blue", "1$1");
    store("K/w", "5$blue");
    const struct
    {
        RegistrySearchJob::Query query;
        const char* hit;
    } rows[] = {{{"blue", true, false, false}, "blue/"},
                {{"blue", false, true, false}, "K/blue"},
                {{"blue", false, false, true}, "K/w"}};
    for (const auto& row : rows) {
        RegistrySearchJob search(row.query);
        while (search.step()) {
        }
        ASSERT_EQ(search.hits().size(), 1U) << row.hit;
        const auto& hit = search.hits().front();
        EXPECT_EQ(RegistryPath::join(hit.path, hit.name).toStdString(), row.hit);
    }
}

TEST_F(RegistryModels, SearchForWholeWordsAndWithRegardToCaseWhereAsked)
{
    for (const char* text :
         {"Blue", "blue", "blueish", "sky_blue", "a (blue) one", "blueblue blue"})
        store(QString("K/") + QString(text).remove('/'), "1$1");
    const auto count = [](bool mindsCase, bool wholeWords) {
        RegistrySearchJob search({"blue", true, true, true, mindsCase, wholeWords});
        while (search.step()) {
        }
        return search.hits().size();
    };
    EXPECT_EQ(count(false, false), 6U);
    EXPECT_EQ(count(true, false), 5U);
    EXPECT_EQ(count(false, true), 4U);
    EXPECT_EQ(count(true, true), 3U);
}

TEST_F(RegistryModels, SearchAllBytesOfBinaryData)
{
    store("k/v", "4$" + QString("00").repeated(80) + "0abcd0" + "abCD");
    const struct
    {
        const char* text;
        bool found;
    } rows[] = {{"ab cd", true}, {"ABCD", true},  {"d0abc", true}, {"0 ab", true},
                {"bcd0", true},  {"cd0a", false}, {"bc", true},    {"cd00", false}};
    for (const auto& row : rows) {
        RegistrySearchJob search({row.text, false, false, true});
        while (search.step()) {
        }
        EXPECT_EQ(!search.hits().empty(), row.found) << row.text;
    }
}

TEST_F(RegistryModels, SearchTheDataOfWhatTheRootLists)
{
    store("loose", "5$blue");
    RegistrySearchJob search({"BLUE", false, false, true});
    while (search.step()) {
    }
    ASSERT_EQ(search.hits().size(), 1U);
    EXPECT_EQ(search.hits().front().name.toStdString(), "loose");
    EXPECT_EQ(search.hits().front().data.toStdString(), "blue");
}

TEST_F(RegistryModels, EndASearchThatFindsTooMuch)
{
    for (int i = 0; i < 1100; ++i)
        store(QString("k/v%1").arg(i), "1$1");
    RegistrySearchJob search({"v", true, true, false});
    while (search.step()) {
    }
    EXPECT_TRUE(search.isFull());
    EXPECT_EQ(search.hits().size(), RegistrySearchJob::mostHits);
}

TEST(RegistryPath, ReadsWhatItShows)
{
    const struct
    {
        const char* text;
        bool valid;
        const char* path;
    } rows[] = {{"HKEY_CURRENT_USER\\A\\B", true, "A/B"},
                {"hkey_local_machine\\A", true, "A"},
                {"HKEY_USERS", true, ""},
                {"A/B\\C", true, "A/B/C"},
                {"\\\\A\\", true, "A"},
                {"", true, ""},
                {"HKEY_CURRENT_USER\\A \\ B ", true, "A / B "},
                {"HKEY_CURRENT_USER\\D\t", true, "D\t"},
                {"HKEY_CURRENT_CONFIG\\A", false, "before"}};
    for (const auto& row : rows) {
        QString path = "before";
        EXPECT_EQ(RegistryPath::parse(row.text, path), row.valid) << row.text;
        EXPECT_EQ(path.toStdString(), row.path) << row.text;
    }
    EXPECT_EQ(RegistryPath::shown("A/B").toStdString(), "HKEY_CURRENT_USER\\A\\B");
    EXPECT_EQ(RegistryPath::shown("").toStdString(), "HKEY_CURRENT_USER");
    EXPECT_EQ(RegistryPath::parent("A/B").toStdString(), "A");
    EXPECT_EQ(RegistryPath::parent("A").toStdString(), "");
}

} // namespace
