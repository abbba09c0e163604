#include "pages/crypto/DigestPanel.h"

#include "inspection/crypto/DigestJob.h"
#include "pages/crypto/CopyButton.h"
#include "pages/crypto/DigestSource.h"
#include "window/ShownText.h"

#include <QFontDatabase>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>

namespace {

constexpr int titleCharacters = 40; // of average width, for the name of a file
constexpr std::uint64_t lengthLimit = std::uint64_t{1} << 29; // its bits no longer fit 32 bits

QStringList departures(const Digests& digests)
{
    QStringList reasons;
    if (digests.extendedByte)
        reasons += DigestPanel::tr("it holds bytes of 0x80 or above");
    if (digests.longPadding)
        reasons += DigestPanel::tr("its length modulo 64 is 57 to 63");
    if (static_cast<std::uint64_t>(digests.length) >= lengthLimit)
        reasons += DigestPanel::tr("it is 512 MiB long or longer");
    return reasons;
}

// Whether the digests differ is found by comparing them; the reasons are those that apply.
QString notes(const Digests& digests)
{
    QStringList lines;
    if (digests.md5 != digests.rfcMd5)
        lines += DigestPanel::tr("The library's MD5 departs from RFC 1321 here, which gives %1, "
                                 "because of the text: %2.")
                     .arg(digests.rfcMd5,
                          departures(digests).join(DigestPanel::tr(", ", "between reasons")));
    if (digests.zeroByte >= 0)
        lines += DigestPanel::tr("Sha256Encode and KdEncode read only the %L1 bytes before the "
                                 "first zero byte.")
                     .arg(digests.zeroByte);
    if (digests.length == 0)
        lines += DigestPanel::tr("SHA-256 and the fingerprint of an empty text are empty.");
    return lines.join(QLatin1Char('\n'));
}

} // namespace

DigestPanel::DigestPanel(QWidget* parent) : QWidget(parent), m_source(new DigestSource)
{
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_source, 1);
    layout->addWidget(makeRequest());
    layout->addWidget(makeResults());
    connect(m_source, &DigestSource::accepted, this, &DigestPanel::request);
    setFocusProxy(m_source);
}

QWidget* DigestPanel::makeRequest()
{
    auto* place = new QWidget;
    m_second = new QLineEdit;
    m_second->setAccessibleName(tr("Second text of KdEncode"));
    auto* label = new QLabel(tr("&Second text of KdEncode:"));
    label->setBuddy(m_second);
    auto* button = glowing(new QPushButton(tr("Digest &now")));
    connect(m_second, &QLineEdit::returnPressed, this, &DigestPanel::request);
    connect(button, &QPushButton::clicked, this, &DigestPanel::request);
    auto* layout = new QHBoxLayout(place);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(label);
    layout->addWidget(m_second, 1);
    layout->addWidget(button);
    return place;
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

DigestPanel::Field DigestPanel::addField(QGridLayout* grid, const QString& caption,
                                         const QString& tip)
{
    auto* text = new QLineEdit;
    text->setReadOnly(true);
    text->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    text->setAccessibleName(caption);
    text->setToolTip(tip);
    auto* copy = new CopyButton(caption, [text] { return text->text(); });
    const int row = grid->rowCount();
    grid->addWidget(new QLabel(caption), row, 0);
    grid->addWidget(text, row, 1);
    grid->addWidget(copy, row, 2);
    return {text, copy};
}

void DigestPanel::request()
{
    QString problem;
    const std::shared_ptr<DigestJob> job = m_source->makeJob(m_second->text().toUtf8(), &problem);
    if (!job) {
        emit reported(Page::Report::Warning, problem);
        return;
    }
    m_requested = m_source->description();
    emit requested(job);
}

void DigestPanel::showResult(const DigestJob& job, bool complete)
{
    if (!complete)
        emit reported(Page::Report::Warning, tr("Cancelled. The results shown are older."));
    else if (!job.error().isEmpty())
        emit reported(Page::Report::Error,
                      tr("%1 could not be read to its end: %2").arg(m_requested, job.error()));
    else
        showDigests(job.digests());
}

void DigestPanel::show(const Field& field, const QString& text)
{
    field.text->setText(text);
    field.text->setCursorPosition(0);
    field.copy->refreshState();
}

// The group would be as wide as the whole name of a file.
void DigestPanel::showTitle()
{
    const QFontMetrics metrics = m_results->fontMetrics();
    const int widest = metrics.averageCharWidth() * titleCharacters;
    QString requested = metrics.elidedText(m_requested, Qt::ElideMiddle, widest);
    m_results->setToolTip(requested == m_requested ? QString() : plainToolTip(m_requested));
    requested.replace(QLatin1Char('&'), QLatin1String("&&")); // else it makes a mnemonic
    m_results->setTitle(tr("Results for %1").arg(requested));
}

void DigestPanel::showDigests(const Digests& digests)
{
    showTitle();
    show(m_sha256, digests.sha256Hex);
    show(m_fingerprint, digests.fingerprint);
    show(m_md5, digests.md5);
    show(m_kd, digests.kd);
    m_notes->setText(notes(digests));
    emit reported(Page::Report::Info, tr("Bytes digested: %L1.").arg(digests.length));
}
