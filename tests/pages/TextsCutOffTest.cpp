#include "tests/inspection/profiles/ProfileFixture.h"
#include "tests/pages/CutTexts.h"
#include "tests/pages/PageNames.h"
#include "tests/pages/SmallFont.h"
#include "tests/pages/WindowProbe.h"
#include "tests/support/WaitFor.h"
#include "tests/window/EndlessJob.h"

#include "host/HostLibraries.h"
#include "inspection/profiles/ProfileDryRun.h"
#include "inspection/registry/ListedValue.h"
#include "inspection/registry/RegistryImportJob.h"
#include "inspection/registry/ValueInput.h"
#include "pages/profiles/ProfileDifferenceDialog.h"
#include "pages/registry/DataField.h"
#include "pages/registry/ImportDialog.h"
#include "pages/registry/NameDialog.h"
#include "pages/registry/RegistryPage.h"
#include "pages/registry/ValueDialog.h"

#include <QApplication>
#include <QCoreApplication>
#include <QLineEdit>
#include <QSettings>
#include <QTabWidget>
#include <QTest>

#include <gtest/gtest.h>

namespace {

using Language = WindowProbe::Language;

/// Something that the window shows: its page, then what is done with it, which may bring a dialog.
struct Scene
{
    std::string name;
    std::string page;
    std::unique_ptr<QWidget> (*show)(const WindowProbe& probe);
};

void PrintTo(const Scene& scene, std::ostream* out)
{
    *out << scene.name;
}

std::unique_ptr<QWidget> nothing(const WindowProbe& /*probe*/)
{
    return nullptr;
}

std::unique_ptr<QWidget> find(const WindowProbe& probe)
{
    probe.page().find();
    return nullptr;
}

std::unique_ptr<QWidget> job(const WindowProbe& probe)
{
    probe.page().startJob(
        QCoreApplication::translate("FontsPage", "Registering the system's fonts"),
        std::make_unique<EndlessJob>(
            QCoreApplication::translate("FontRegistrationJob", "Families left: %L1").arg(1234567)),
        [](EndlessJob&, bool) {});
    return nullptr;
}

// As long as the longest that the pages tell.
std::unique_ptr<QWidget> report(const WindowProbe& probe)
{
    const QString text = QCoreApplication::translate(
        "FileSearchJob",
        "The service finds nothing for a pattern without a directory, whatever the "
        "working directory holds. Put one before it, such as ./%1.");
    probe.page().report(Page::Report::Error, text.arg(QStringLiteral("name")));
    return nullptr;
}

std::unique_ptr<QWidget> reportOnInput(const WindowProbe& probe)
{
    probe.page().report(Page::Report::Warning,
                        QCoreApplication::translate("FindWindowPanel",
                                                    "No window was found. Names must match "
                                                    "exactly, upper and lower case included."));
    return nullptr;
}

template <unsigned int Type>
std::unique_ptr<QWidget> value(const WindowProbe& probe)
{
    auto dialog = std::make_unique<ValueDialog>(Type, &ValueInput::nameProblem, &probe.page());
    dialog->findChild<QLineEdit*>()->setText(QStringLiteral("name"));
    auto* data = dialog->findChild<DataField*>();
    data->setText(QStringLiteral("65\u4e2d\u6587"));
    emit data->changed();
    return dialog;
}

// A value that cannot be read, and what replaces it.
std::unique_ptr<QWidget> storedValue(const WindowProbe& probe)
{
    g_globalSettings->setValue(QStringLiteral("A/v"), QStringLiteral("12x$Maria Lund, Harbour 7"));
    auto dialog = std::make_unique<ValueDialog>(
        ListedValue::ofKey(QStringLiteral("A"), RegistryIndex()).front(), &probe.page());
    dialog->findChild<DataField*>()->findChild<QLineEdit*>()->setText(
        QStringLiteral("a new and longer text than a line of the dialog has room for"));
    g_globalSettings->clear();
    return dialog;
}

std::unique_ptr<QWidget> name(const WindowProbe& probe)
{
    auto dialog = std::make_unique<NameDialog>(
        QStringLiteral("New key"),
        QStringLiteral("HKEY_CURRENT_USER\\Software\\Maker\\Program\\Settings"),
        &ValueInput::keyNameProblem, &probe.page());
    dialog->findChild<QLineEdit*>()->setText(QStringLiteral("a/b"));
    return dialog;
}

std::unique_ptr<QWidget> import(const WindowProbe& probe)
{
    static RegistryImportJob import("Windows Registry Editor Version 5.00\r\n\r\n"
                                    "[HKEY_CURRENT_USER\\A]\r\n\"good\"=dword:1\r\n"
                                    "\"multi\"=hex(7):00,00\r\n");
    while (import.step())
        ;
    return std::make_unique<ImportDialog>(QStringLiteral("file.reg"), import.plan(), &probe.page());
}

template <ProfileFamily Family, ProfileChange::Action Action = ProfileChange::Action::Set>
std::unique_ptr<QWidget> difference(const WindowProbe& probe)
{
    const ProfileFixture file;
    file.write("\xef\xbb\xbf; by hand\n[Net]\nHost\nQuery=a=b\n\n[App]\r\nx = \xe4\n");
    const ProfileChange change{Family, QStringLiteral("App"), QStringLiteral("x"),
                               QStringLiteral("2"), Action};
    ProfileDryRun dryRun(file.path(), change);
    while (dryRun.step())
        ;
    return std::make_unique<ProfileDifferenceDialog>(dryRun.difference(), change, &probe.page());
}

// What single pages show besides.
const Scene dialogs[] = {
    {"StringDialog", "registry", value<REG_SZ>},
    {"NumberDialog", "registry", value<REG_DWORD>},
    {"LargeNumberDialog", "registry", value<REG_QWORD>},
    {"BinaryDialog", "registry", value<REG_BINARY>},
    {"StoredValueDialog", "registry", storedValue},
    {"NameDialog", "registry", name},
    {"ImportDialog", "registry", import},
    {"DifferenceNarrow", "profiles", difference<ProfileFamily::Narrow>},
    {"DifferenceWide", "profiles", difference<ProfileFamily::Wide>},
    {"DifferenceDeletion", "profiles",
     difference<ProfileFamily::Wide, ProfileChange::Action::DeleteKey>},
};

std::vector<Scene> scenes()
{
    std::vector<Scene> all(std::begin(dialogs), std::end(dialogs));
    for (const std::string& page : pageNames()) {
        all.push_back({"Page_" + page, page, nothing});
        all.push_back({"Find_" + page, page, find});
        all.push_back({"Job_" + page, page, job});
        all.push_back({"Report_" + page, page, page == "input" ? reportOnInput : report});
    }
    return all;
}

class TextsOfAScene : public testing::TestWithParam<std::tuple<Scene, Language>>
{
    SmallFont m_font;
};

TEST_P(TextsOfAScene, AreNotCutOffInASmallWindow)
{
    const auto& [scene, language] = GetParam();
    const WindowProbe probe(scene.page, language);
    const std::unique_ptr<QWidget> dialog = scene.show(probe);
    QWidget* root = dialog ? dialog.get() : probe.page().window();
    root->show();
    ASSERT_TRUE(waitForExposed(root));
    auto* tabs = root->findChild<QTabWidget*>();
    for (int tab = 0; tab < (tabs ? tabs->count() : 1); ++tab) {
        if (tabs)
            tabs->setCurrentIndex(tab);
        // What has just got its text is laid out at the next turns of the event loop.
        EXPECT_TRUE(waitFor([root] { return cutTexts(*root).isEmpty(); }))
            << cutTexts(*root).join(QLatin1String(" | ")).toStdString();
    }
    EXPECT_LE(root->width(), 800);
    EXPECT_LE(root->height(), 600);
    probe.page().cancelJob();
}

INSTANTIATE_TEST_SUITE_P(Scenes, TextsOfAScene,
                         testing::Combine(testing::ValuesIn(scenes()),
                                          testing::Values(Language::English, Language::Chinese)),
                         [](const auto& row) {
                             return std::get<0>(row.param).name +
                                    (std::get<1>(row.param) == Language::English ? "English"
                                                                                 : "Chinese");
                         });

} // namespace
