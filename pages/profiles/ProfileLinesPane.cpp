#include "pages/profiles/ProfileLinesPane.h"

#include "inspection/profiles/ProfileFindJob.h"
#include "pages/profiles/ProfileEncodingBox.h"
#include "pages/profiles/ProfileFindBar.h"
#include "pages/profiles/ProfileLinesModel.h"
#include "pages/profiles/ProfileTable.h"
#include "platform/profiles/LineStateText.h"
#include "window/ColumnFit.h"
#include "window/EmptyHint.h"
#include "window/PageContext.h"
#include "window/ShownText.h"

#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QSignalBlocker>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

ProfileLinesPane::ProfileLinesPane(PageContext& page, QWidget* parent)
    : QWidget(parent),
      m_page(page),
      m_model(new ProfileLinesModel(this)),
      m_form(new QLabel),
      m_encodingLabel(new QLabel(tr("Shown as:"))),
      m_encoding(new ProfileEncodingBox),
      m_find(new ProfileFindBar),
      m_table(makeProfileTable(m_model, tr("Lines of the file"), QStringLiteral("lines")))
{
    makeLines();
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(makeFormRow());
    layout->addWidget(m_find);
    layout->addWidget(m_table, 1);
    m_find->hide();
    connect(m_find, &ProfileFindBar::nextRequested, this, &ProfileLinesPane::findNext);
    connect(m_find, &ProfileFindBar::closed, m_table, QOverload<>::of(&QWidget::setFocus));
    showForm();
}

QLayout* ProfileLinesPane::makeFormRow()
{
    m_form->setObjectName(QStringLiteral("form"));
    m_form->setTextFormat(Qt::PlainText);
    m_form->setWordWrap(true);
    m_form->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_encodingLabel->setBuddy(m_encoding);
    auto* row = new QHBoxLayout;
    row->addWidget(m_form, 1);
    row->addWidget(m_encodingLabel);
    row->addWidget(m_encoding);
    connect(m_encoding, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &ProfileLinesPane::showCodec);
    return row;
}

void ProfileLinesPane::makeLines()
{
    const QFontMetrics metrics = m_table->fontMetrics();
    const QStringList states = shortTexts();
    const QString widest = *std::max_element(
        states.begin(), states.end(), [&metrics](const QString& one, const QString& other) {
            return metrics.horizontalAdvance(one) < metrics.horizontalAdvance(other);
        });
    ColumnFit::of(*m_table).setSamples({QString(), widest, widest});
    new EmptyHint(m_table,
                  tr("Open a profile, or drop one here: each line appears with a margin that "
                     "tells how either family of calls reads it."));
    connect(m_table->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this](const QModelIndex& current) {
                if (current.isValid())
                    emit lineChosen(m_model->recordAt(current.row()));
            });
}

void ProfileLinesPane::setDocument(std::shared_ptr<const ProfileDocument> document)
{
    m_model->setDocument(std::move(document));
    showForm();
}

// The file's name, as the field above it may hold another one that has been refused.
void ProfileLinesPane::showForm()
{
    const ProfileDocument* document = m_model->document().get();
    const bool isThere = document && document->exists();
    m_form->setVisible(isThere);
    const bool hasOtherLines = isThere && !document->lines().form().otherLines().empty();
    m_encodingLabel->setVisible(hasOtherLines);
    m_encoding->setVisible(hasOtherLines);
    if (isThere) {
        const QString restriction = document->restriction();
        m_form->setText(withoutLongWords(
            tr("%1. %2", "name and form of a file")
                .arg(QFileInfo(document->path()).fileName(),
                     restriction.isEmpty() ? document->lines().form().text() : restriction)));
    }
    showCodec();
    ColumnFit::of(*m_table).setSample(ProfileColumns::NumberColumn,
                                      QLocale().toString(std::max(m_model->rowCount(), 10000)));
}

void ProfileLinesPane::showCodec()
{
    m_model->setCodec(m_encoding->codec());
}

void ProfileLinesPane::setNotFound(int line)
{
    m_model->setNotFound(line);
}

int ProfileLinesPane::chosenLine() const
{
    const int row = chosenRow(*m_table);
    return row < 0 ? -1 : m_model->recordAt(row);
}

void ProfileLinesPane::chooseLine(int line)
{
    const QSignalBlocker blocker(this);
    if (line < m_model->rowCount())
        m_table->selectRow(m_model->rowOf(line));
}

QString ProfileLinesPane::text(int line) const
{
    return m_model->line(line).text;
}

QString ProfileLinesPane::description(int row) const
{
    const ProfileDocument::Line line = m_model->line(row);
    QString text =
        tr("Line %1. Narrow: %2 Wide: %3")
            .arg(QLocale().toString(line.number), longText(line.narrow, ProfileFamily::Narrow),
                 longText(line.wide, ProfileFamily::Wide));
    if (!line.isUtf8)
        text += QLatin1Char(' ') + ProfileColumns::otherEncodingText();
    return text;
}

int ProfileLinesPane::scrollPosition() const
{
    return scrolledRows(*m_table);
}

void ProfileLinesPane::scrollTo(int position)
{
    scrollRows(*m_table, position);
}

bool ProfileLinesPane::hasLines() const
{
    return m_model->rowCount() > 0;
}

void ProfileLinesPane::find()
{
    m_find->open();
}

// Searches from the line behind the chosen one to the end, and from the first line on.
void ProfileLinesPane::findNext()
{
    const QString text = m_find->text();
    if (text.isEmpty()) {
        find();
        return;
    }
    m_page.startJob(tr("Searching the lines"),
                    std::make_unique<ProfileFindJob>(m_model->document(), text, chosenLine() + 1,
                                                     m_model->codec()),
                    [this, text](const ProfileFindJob& job, bool complete) {
                        finishSearch(job, complete, text);
                    });
}

void ProfileLinesPane::finishSearch(const ProfileFindJob& job, bool complete, const QString& text)
{
    if (job.found() >= 0) {
        m_table->setCurrentIndex(
            m_model->index(m_model->rowOf(job.found()), ProfileColumns::TextColumn));
        m_page.setStatus(description(job.found()));
    } else if (complete) {
        m_page.setStatus(tr("No line contains “%1”.").arg(text));
    } else {
        m_page.setStatus(tr("Stopped before all lines were searched."));
    }
}
