#include "pages/crypto/DigestPanel.h"

#include "inspection/crypto/DigestJob.h"
#include "inspection/crypto/DigestNotes.h"
#include "pages/crypto/DigestSource.h"
#include "window/CopyButton.h"
#include "window/Page.h"
#include "window/ShownText.h"

#include <QFontDatabase>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>

namespace {

constexpr int titleCharacters = 40; // of average width, for the name of a file

} // namespace

DigestPanel::DigestPanel(PageContext& context, QWidget* parent)
    : QWidget(parent),
      m_context(context),
      m_source(new DigestSource(context)),
      m_second(new QLineEdit)
{
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_source, 1);
    layout->addLayout(makeRequest());
    layout->addWidget(makeResults());
    connect(m_source, &DigestSource::accepted, this, &DigestPanel::digest);
    setFocusProxy(m_source);
}

QLayout* DigestPanel::makeRequest()
{
    m_second->setAccessibleName(tr("Second text of KdEncode"));
    auto* label = new QLabel(tr("&Second text of KdEncode:"));
    label->setBuddy(m_second);
    auto* button = glowing(new QPushButton(tr("Digest &now")));
    connect(m_second, &QLineEdit::returnPressed, this, &DigestPanel::digest);
    connect(button, &QPushButton::clicked, this, &DigestPanel::digest);
    auto* layout = new QHBoxLayout;
    layout->addWidget(label);
    layout->addWidget(m_second, 1);
    layout->addWidget(button);
    return layout;
}

QWidget* DigestPanel::makeResults()
{
    m_results = new QGroupBox(tr("Results"));
    m_results->setObjectName(QStringLiteral("results"));
    auto* grid = new QGridLayout(m_results);
    m_sha256 = addField(grid, QStringLiteral("SHA-256"), tr("Sha256::getHexMessageDigest"));
    m_fingerprint = addField(grid, QStringLiteral("Sha256Encode"),
                             tr("Encrypt::Sha256Encode: the digest in URL-safe Base64"));
    m_md5 = addField(grid, QStringLiteral("MD5"), tr("MD5::Encode"));
    m_kd = addField(grid, QStringLiteral("KdEncode"),
                    tr("Encrypt::KdEncode of the text and the second text"));
    m_notes = new QLabel(tr("Choose a text or a file, then Digest now."));
    m_notes->setTextFormat(Qt::PlainText);
    m_notes->setWordWrap(true);
    m_notes->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_notes->setObjectName(QStringLiteral("notes"));
    grid->addWidget(m_notes, grid->rowCount(), 0, 1, 3);
    return m_results;
}

QLineEdit* DigestPanel::addField(QGridLayout* grid, const QString& caption, const QString& tip)
{
    auto* field = new QLineEdit;
    field->setReadOnly(true);
    field->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    field->setAccessibleName(caption);
    field->setToolTip(tip);
    auto* copy = new CopyButton(caption, [field] { return field->text(); });
    connect(field, &QLineEdit::textChanged, copy, &CopyButton::refreshState);
    const int row = grid->rowCount();
    grid->addWidget(new QLabel(caption), row, 0);
    grid->addWidget(field, row, 1);
    grid->addWidget(copy, row, 2);
    return field;
}

void DigestPanel::digest()
{
    std::unique_ptr<DigestJob> job = m_source->makeJob(m_second->text().toUtf8());
    if (!job)
        return;
    const QString name = m_source->description();
    m_context.startJob(
        tr("Digesting"), std::move(job),
        [this, name](DigestJob& done, bool complete) { showResult(name, done, complete); });
}

void DigestPanel::showResult(const QString& name, const DigestJob& job, bool complete)
{
    if (!complete) {
        m_context.report(PageContext::Report::Warning,
                         tr("Cancelled. The results shown are older."));
    } else if (!job.error().isEmpty()) {
        m_context.report(PageContext::Report::Error,
                         tr("%1 could not be read to its end: %2").arg(name, job.error()));
    } else {
        showTitle(name);
        showDigests(job.digests());
    }
}

// The group would be as wide as the whole name of a file.
void DigestPanel::showTitle(const QString& name)
{
    const QFontMetrics metrics = m_results->fontMetrics();
    const int widest = metrics.averageCharWidth() * titleCharacters;
    QString title = metrics.elidedText(name, Qt::ElideMiddle, widest);
    m_results->setToolTip(title == name ? QString() : plainToolTip(name));
    title.replace(QLatin1Char('&'), QLatin1String("&&")); // else it makes a mnemonic
    m_results->setTitle(tr("Results for %1").arg(title));
}

void DigestPanel::showDigests(const Digests& digests)
{
    const std::pair<QLineEdit*, QString> results[] = {{m_sha256, digests.sha256Hex},
                                                      {m_fingerprint, digests.fingerprint},
                                                      {m_md5, digests.md5},
                                                      {m_kd, digests.kd}};
    for (const auto& [field, text] : results) {
        field->setText(text);
        field->setCursorPosition(0);
    }
    m_notes->setText(DigestNotes::of(digests));
    m_context.report(PageContext::Report::Info, tr("Bytes digested: %L1.").arg(digests.length));
}
