#include "pages/fonts/FontsPage.h"

#include "inspection/fonts/CharacterSets.h"
#include "inspection/fonts/FontPreview.h"
#include "inspection/fonts/FontRegistrationJob.h"
#include "window/AnswerField.h"
#include "window/ColumnFit.h"
#include "window/EmptyHint.h"
#include "window/FaintText.h"
#include "window/KeptPlace.h"
#include "window/ViewLook.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QTableView>
#include <QVBoxLayout>

namespace {

QVariant previewLook(const FontPreview& preview, const RegisteredFont& font, int role)
{
    if (role == Qt::ToolTipRole)
        return plainToolTip(font.fullName);
    if (role == Qt::FontRole && preview.isInstalled(font))
        return preview.font(font);
    if (role == Qt::ForegroundRole && !preview.isInstalled(font))
        return faintText();
    return {};
}

std::vector<RecordColumn<RegisteredFont>> columns(const std::shared_ptr<FontPreview>& preview)
{
    using Column = RecordColumn<RegisteredFont>;
    using Font = const RegisteredFont&;
    const auto sample = [preview](Font font) { return preview->sample(font); };
    const auto look = [preview](Font font, int role) { return previewLook(*preview, font, role); };
    return {Column{FontsPage::tr("Family"), [](Font font) { return font.face; }},
            Column{FontsPage::tr("Style"), [](Font font) { return font.style; }},
            Column{FontsPage::tr("Character set"),
                   [](Font font) { return CharacterSets::title(font.charSet); }},
            Column{FontsPage::tr("Script"), [](Font font) { return font.script; }},
            Column{FontsPage::tr("Preview"), sample, look}};
}

} // namespace

FontsPage::FontsPage(QWidget* parent)
    : Page(parent),
      m_family(new QLineEdit),
      m_charSet(new QComboBox),
      m_preview(std::make_shared<FontPreview>()),
      m_records(new RecordsModel<RegisteredFont>(columns(m_preview), this)),
      m_table(makeTable()),
      m_hint(new EmptyHint(m_table, QString())),
      m_localName(new QLineEdit),
      m_globalName(new AnswerField(tr("Global name"), QStringLiteral("globalName")))
{
    body()->addLayout(makeFilterRow());
    body()->addWidget(m_table, 1);
    body()->addLayout(makeButtonRow());
    body()->addWidget(makeMapping());
    setFocusProxy(m_family);
    showRecords();
}

QLayout* FontsPage::makeFilterRow()
{
    m_family->setObjectName(QStringLiteral("family"));
    m_family->setAccessibleName(tr("Family to show"));
    m_family->setPlaceholderText(tr("All families"));
    m_family->setMaxLength(LF_FACESIZE - 1);
    auto* familyLabel = new QLabel(tr("Famil&y:"));
    familyLabel->setBuddy(m_family);
    auto* charSetLabel = new QLabel(tr("Character &set:"));
    charSetLabel->setBuddy(m_charSet);
    m_charSet->setObjectName(QStringLiteral("charSet"));
    m_charSet->setAccessibleName(tr("Character set to show"));
    m_charSet->view()->setAccessibleName(m_charSet->accessibleName());
    m_charSet->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_charSet->setMinimumContentsLength(22);
    m_charSet->addItem(tr("All character sets"), DEFAULT_CHARSET);
    for (const BYTE code : CharacterSets::codes()) {
        if (code != DEFAULT_CHARSET)
            m_charSet->addItem(CharacterSets::title(code), code);
    }
    auto* row = new QHBoxLayout;
    row->addWidget(familyLabel);
    row->addWidget(m_family, 1);
    row->addWidget(charSetLabel);
    row->addWidget(m_charSet, 1);
    connect(m_family, &QLineEdit::textChanged, this, &FontsPage::showRecords);
    connect(m_charSet, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &FontsPage::showRecords);
    return row;
}

QLayout* FontsPage::makeButtonRow()
{
    auto* add = glowing(new QPushButton(tr("Re&gister the system's fonts")));
    add->setObjectName(QStringLiteral("register"));
    auto* row = new QHBoxLayout;
    row->addWidget(add);
    row->addStretch();
    connect(add, &QPushButton::clicked, this, &FontsPage::registerSystemFonts);
    return row;
}

QTableView* FontsPage::makeTable()
{
    auto* table = new QTableView;
    table->setObjectName(QStringLiteral("records"));
    table->setAccessibleName(tr("Registered fonts"));
    table->setModel(m_records);
    arrangeTable(*table);
    table->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    table->verticalHeader()->setDefaultSectionSize(table->fontMetrics().height() * 7 / 4);
    ColumnFit& columns = ColumnFit::of(*table);
    columns.setSamples({QStringLiteral("WenQuanYi Micro"), QStringLiteral("Demi Oblique "),
                        CharacterSets::title(CHINESEBIG5_CHARSET),
                        QStringLiteral("CHINESE_GB2312")});
    columns.giveRestTo({0, 4}); // the family and the preview
    connect(table->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this](const QModelIndex& current) {
                if (current.isValid() && !m_isRestoring)
                    m_localName->setText(m_records->record(current.row()).face);
            });
    return table;
}

QWidget* FontsPage::makeMapping()
{
    m_localName->setObjectName(QStringLiteral("localName"));
    m_localName->setAccessibleName(tr("Local name"));
    m_localName->setPlaceholderText(tr("A registered face name"));
    auto* box = new QGroupBox(tr("Name mapping"));
    auto* row = new QHBoxLayout(box);
    auto* local = new QLabel(tr("Local na&me:"));
    local->setBuddy(m_localName);
    row->addWidget(local);
    row->addWidget(m_localName, 1);
    row->addWidget(new QLabel(tr("Global name:")));
    row->addWidget(m_globalName, 1);
    connect(m_localName, &QLineEdit::textChanged, this, &FontsPage::showGlobalName);
    return box;
}

void FontsPage::refresh()
{
    showRecords();
    showGlobalName();
}

void FontsPage::find()
{
    m_family->setFocus(Qt::ShortcutFocusReason);
    m_family->selectAll();
}

// Host libraries may have registered fonts in the meantime. A job that runs ends with a refresh.
void FontsPage::entered()
{
    if (!isBusy())
        refresh();
}

void FontsPage::lookForChanges()
{
    if (FontCatalogue::count() != m_count)
        refresh();
}

void FontsPage::showRecords()
{
    const QScopedValueRollback<bool> restoring(m_isRestoring, true);
    const KeptPlace place(*m_table, [this](int row) {
        const RegisteredFont& font = m_records->record(row);
        return QStringLiteral("%1\n%2\n%3").arg(font.face, font.style).arg(font.charSet);
    });
    const auto charSet = static_cast<BYTE>(m_charSet->currentData().toUInt());
    const bool all = m_family->text().isEmpty() && charSet == DEFAULT_CHARSET;
    m_hint->setText(
        all ? tr("No font is registered. Host libraries register theirs when they start; "
                 "the button below registers those of this system.")
            : tr("The service reports no record of this family and character set. Names "
                 "are compared exactly, upper and lower case included."));
    *m_preview = {};
    m_count = FontCatalogue::count();
    m_records->setRecords(FontCatalogue::records(m_family->text(), charSet));
    place.restore();
    setStatus(tr("Records: %L1").arg(m_records->rowCount()));
    markRead();
}

void FontsPage::showGlobalName()
{
    const QString local = m_localName->text();
    const QString global = local.isEmpty() ? QString() : FontCatalogue::globalName(local);
    m_globalName->setAnswer(!local.isEmpty() && global.isEmpty() ? tr("None") : global);
}

void FontsPage::registerSystemFonts()
{
    if (isBusy())
        return;
    startJob(tr("Registering the system's fonts"), std::make_unique<FontRegistrationJob>(),
             [this](const FontRegistrationJob& job, bool complete) { finish(job, complete); });
}

void FontsPage::finish(const FontRegistrationJob& job, bool complete)
{
    refresh();
    QString text = complete ? job.summary() : tr("Stopped. %1").arg(job.summary());
    const bool isWhole = complete && job.tooLong().isEmpty();
    if (!job.tooLong().isEmpty())
        text += u' ' + job.omissions();
    report(isWhole ? Report::Info : Report::Warning, text);
}
