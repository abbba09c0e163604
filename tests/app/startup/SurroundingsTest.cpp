// The real executable where something that it finds elsewhere is missing or damaged.

#include "tests/app/startup/Application.h"

#include <QFile>

#include <gtest/gtest.h>

namespace {

const QString chinese = QStringLiteral("简体中文");

void write(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QFile::WriteOnly));
    EXPECT_EQ(bytes.size(), file.write(bytes));
}

TEST(Surroundings, WithoutAFolderForTemporaryFiles)
{
    Application application;
    application.setEnvironment("TMPDIR", application.folder() + "/missing");
    ASSERT_TRUE(application.run());
    EXPECT_EQ(0, application.status());
    EXPECT_EQ(QStringLiteral("MainWindow"), application.value("class"));
}

TEST(Surroundings, WithoutFonts)
{
    Application application;
    application.expectMessages(); // Qt says that it finds none
    const QString fonts = application.folder() + "/fonts.conf";
    write(fonts, "<?xml version=\"1.0\"?><fontconfig></fontconfig>");
    application.setEnvironment("FONTCONFIG_FILE", fonts);
    application.setEnvironment("QT_QPA_FONTDIR", application.folder() + "/missing");
    ASSERT_TRUE(application.run());
    EXPECT_EQ(0, application.status());
    EXPECT_EQ(QStringLiteral("MainWindow"), application.value("class"));
}

TEST(Surroundings, WithDamagedCatalogues)
{
    for (const QByteArray& bytes :
         {QByteArray(), QByteArray("no catalogue"), QByteArray(4096, '\0')}) {
        Application application;
        application.bringQtCatalogue();
        const QString catalogue = application.folder() + "/translations/qt_zh_CN.qm";
        EXPECT_TRUE(QFile::remove(catalogue));
        write(catalogue, bytes);
        ASSERT_TRUE(application.run({"/language", "zh-CN"}));
        EXPECT_EQ(0, application.status());
        EXPECT_EQ(chinese, application.value("language"));
        EXPECT_EQ(QStringLiteral("Cancel"), application.value("cancel"));
    }
}

TEST(Surroundings, WithHalfACatalogue)
{
    Application application;
    application.bringQtCatalogue();
    QFile catalogue(application.folder() + "/translations/qt_zh_CN.qm");
    EXPECT_TRUE(catalogue.setPermissions(QFile::ReadOwner | QFile::WriteOwner));
    EXPECT_TRUE(catalogue.resize(catalogue.size() / 2));
    ASSERT_TRUE(application.run({"/language", "zh-CN"}));
    EXPECT_EQ(0, application.status());
    EXPECT_EQ(chinese, application.value("language"));
}

} // namespace
