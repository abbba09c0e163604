#include "tests/pages/registry/RegistryPageFixture.h"
#include "tests/support/WaitFor.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTableView>

namespace {

class ValueDialogTest : public RegistryPageFixture
{
protected:
    // Opens the editor of a value with this stored text.
    void edit(const QVariant& entry)
    {
        store("A/v", entry);
        show();
        m_page.goTo("A", "v");
        QTest::keyClick(&table(), Qt::Key_F2);
        EXPECT_TRUE(waitFor([] {
            return (lineField() && lineField()->hasFocus()) ||
                   (largeField() && largeField()->hasFocus());
        }));
    }

    static QString storedLine()
    {
        for (const QLineEdit* line : dialog().findChildren<QLineEdit*>()) {
            if (line->accessibleName() == "Stored text (raw)")
                return line->text();
        }
        return "(no line)";
    }

    void chooseType(const QString& name)
    {
        auto* types = dialog().findChild<QComboBox*>();
        types->setCurrentIndex(types->findText(name));
    }

    bool isClosed()
    {
        return waitFor([] { return !QApplication::activeModalWidget(); });
    }
};

TEST_F(ValueDialogTest, ShowsTheStoredTextOfAValueWithoutATag)
{
    edit("Maria Lund");
    EXPECT_EQ(storedLine().toStdString(), "Maria Lund");
    EXPECT_TRUE(words().contains("OK leaves it as it is.")) << words().toStdString();
    EXPECT_TRUE(words().contains("No type tag")) << words().toStdString();
    reject();
}

TEST_F(ValueDialogTest, SaysWhatWouldReplaceTheStoredText)
{
    edit("1$three");
    EXPECT_EQ(storedLine().toStdString(), "1$three");
    lineField()->setText("3");
    EXPECT_TRUE(words().contains("OK replaces it with: 1$3")) << words().toStdString();
    lineField()->setText("x");
    EXPECT_TRUE(words().contains("It is not replaced")) << words().toStdString();
    reject();
}

TEST_F(ValueDialogTest, ShowsLineEndsInTheStoredText)
{
    edit("5$a\r\nb");
    EXPECT_EQ(storedLine(), QString::fromUtf16(u"5$a\u240d\u21b5b"));
    reject();
}

TEST_F(ValueDialogTest, HasNoStoredTextForANewValue)
{
    show();
    chooseNew(NewString);
    EXPECT_EQ(storedLine().toStdString(), "(no line)");
    EXPECT_FALSE(words().contains("OK leaves")) << words().toStdString();
    reject();
}

TEST_F(ValueDialogTest, WritesWhatABadNumberIsReadAsOnceItHasBeenTyped)
{
    edit("1$three");
    ASSERT_EQ(lineField()->text().toStdString(), "0");
    lineField()->setText("1");
    lineField()->setText("0");
    ASSERT_TRUE(accept());
    EXPECT_EQ(stored("A/v").toStdString(), "1$0");
}

TEST_F(ValueDialogTest, WritesNothingForATextThatIsTypedAgain)
{
    edit("5$same");
    lineField()->setText("other");
    lineField()->setText("same");
    ASSERT_TRUE(accept());
    EXPECT_EQ(m_page.undoStack().count(), 0);
    EXPECT_TRUE(status().contains("stays as it is")) << status().toStdString();
}

TEST_F(ValueDialogTest, WritesAnotherTypeForTheSameText)
{
    edit("1$42");
    chooseType("REG_SZ");
    ASSERT_TRUE(accept());
    EXPECT_EQ(stored("A/v").toStdString(), "5$42");
}

class OneLine : public ValueDialogTest, public testing::WithParamInterface<const char*>
{
};

TEST_P(OneLine, IsSubmittedByEnter)
{
    edit(GetParam());
    ASSERT_TRUE(lineField());
    QTest::keyClicks(lineField(), "41");
    QTest::keyClick(lineField(), Qt::Key_Return);
    ASSERT_TRUE(isClosed());
    EXPECT_EQ(stored("A/v").toStdString(), std::string(GetParam(), 2) + "41");
}

INSTANTIATE_TEST_SUITE_P(OfNumbersAndTexts, OneLine, testing::Values("1$7", "2$7", "5$HC-41"));

class LargeField : public ValueDialogTest, public testing::WithParamInterface<const char*>
{
};

TEST_P(LargeField, IsSubmittedByCtrlEnterAlone)
{
    edit(GetParam());
    ASSERT_TRUE(largeField());
    QTest::keyClick(largeField(), Qt::Key_End, Qt::ControlModifier);
    QTest::keyClick(largeField(), Qt::Key_Return);
    ASSERT_TRUE(QApplication::activeModalWidget());
    QTest::keyClicks(largeField(), "42");
    QTest::keyClick(largeField(), Qt::Key_Return, Qt::ControlModifier);
    ASSERT_TRUE(isClosed());
    EXPECT_EQ(stored("A/v").right(2).toStdString(), "42");
}

INSTANTIATE_TEST_SUITE_P(OfBytesAndLines, LargeField, testing::Values("4$0041", "5$a\nb"));

TEST_F(ValueDialogTest, SubmitsNothingThatIsNotValid)
{
    edit("4$0041");
    largeField()->setPlainText("x");
    QTest::keyClick(largeField(), Qt::Key_Enter, Qt::ControlModifier);
    EXPECT_TRUE(QApplication::activeModalWidget());
    reject();
    EXPECT_EQ(stored("A/v").toStdString(), "4$0041");
}

TEST_F(ValueDialogTest, TakesSeveralLinesOnRequest)
{
    edit("5$a");
    dialog().findChild<QCheckBox*>()->click();
    ASSERT_TRUE(largeField());
    EXPECT_EQ(largeField()->toPlainText().toStdString(), "a");
    QTest::keyClick(largeField(), Qt::Key_Return);
    EXPECT_FALSE(dialog().findChild<QCheckBox*>()->isEnabled());
    QTest::keyClicks(largeField(), "b");
    ASSERT_TRUE(accept());
    EXPECT_EQ(stored("A/v").toStdString(), "5$a\nb");
}

TEST_F(ValueDialogTest, ShowsLinesThatArePastedIntoTheLine)
{
    edit("5$a");
    lineField()->setText("b\nc");
    ASSERT_TRUE(largeField());
    EXPECT_EQ(largeField()->toPlainText().toStdString(), "b\nc");
    ASSERT_TRUE(accept());
    EXPECT_EQ(stored("A/v").toStdString(), "5$b\nc");
}

TEST_F(ValueDialogTest, AcceptsNoNameThatIsTaken)
{
    store("A/v", "no tag");
    show();
    m_page.goTo("A");
    chooseNew(NewString);
    type("v", "typed");
    EXPECT_FALSE(accept());
    EXPECT_TRUE(words().contains("HKEY_CURRENT_USER\\A has a value \"v\" already."))
        << words().toStdString();
    type("w", "typed");
    ASSERT_TRUE(accept());
    EXPECT_EQ(stored("A/w").toStdString(), "5$typed");
    EXPECT_EQ(stored("A/v").toStdString(), "no tag");
}

TEST_F(ValueDialogTest, TakesTheFieldThatTheTypeNeeds)
{
    show();
    chooseNew(NewDword);
    EXPECT_TRUE(lineField());
    chooseType("REG_BINARY");
    EXPECT_TRUE(largeField());
    chooseType("REG_SZ");
    EXPECT_TRUE(lineField());
    reject();
}

} // namespace
