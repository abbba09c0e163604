#include "pages/registry/AddressBar.h"

#include "inspection/registry/RegistryPath.h"
#include "inspection/registry/TypedAddress.h"
#include "pages/registry/RegistryTreeModel.h"
#include "window/Page.h"
#include "window/PathEdit.h"
#include "window/ShownText.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStringListModel>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

using Report = PageContext::Report;

namespace {

constexpr int mostCompletions = 100;

} // namespace

AddressBar::AddressBar(PageContext& page, RegistryTreeModel& keys, QWidget* parent)
    : QWidget(parent),
      m_page(page),
      m_keys(keys),
      m_layout(new QHBoxLayout),
      m_line(new PathEdit),
      m_completer(new QCompleter(new QStringListModel(this), this)),
      m_offerText(new QLabel),
      m_offer(makeOffer())
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(makeLine());
    layout->addWidget(m_offer);
    m_offer->hide();
    m_completer->setCaseSensitivity(Qt::CaseInsensitive);
    m_line->setCompleter(m_completer);
    connect(m_line, &QLineEdit::textEdited, this, &AddressBar::complete);
    connect(m_line, &QLineEdit::returnPressed, this, &AddressBar::submit);
    connect(&m_completing, &JobRunner::finished, this,
            [this] { showCompletions(m_completion->completions()); });
    connect(&m_seeking, &JobRunner::finished, this, &AddressBar::offerNearest);
}

QWidget* AddressBar::makeLine()
{
    auto* line = new QWidget;
    auto* caption = new QLabel(tr("&Go to:"));
    caption->setBuddy(m_line);
    m_line->setObjectName(QStringLiteral("address"));
    m_line->setAccessibleName(tr("Path of the key"));
    line->setLayout(m_layout);
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->addWidget(caption);
    m_layout->addWidget(m_line, 1);
    return line;
}

QWidget* AddressBar::makeOffer()
{
    auto* offer = new QWidget;
    auto* layout = new QHBoxLayout(offer);
    m_offerText->setTextFormat(Qt::PlainText);
    m_offerText->setWordWrap(true);
    auto* go = glowing(new QPushButton(tr("&Jump there")));
    go->setObjectName(QStringLiteral("jump"));
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_offerText, 1);
    layout->addWidget(go);
    connect(go, &QPushButton::clicked, this, [this] { enter(QString(m_offered)); });
    return offer;
}

// What is typed has led somewhere: it need not be kept.
void AddressBar::enter(const QString& path)
{
    m_line->setModified(false);
    emit entered(path);
}

void AddressBar::setPath(const QString& path)
{
    if (std::exchange(m_path, path) == path && m_line->isModified())
        return;
    stopLooking();
    m_line->setText(RegistryPath::shown(path));
    m_offer->hide();
}

void AddressBar::addButton(QWidget* button)
{
    m_layout->addWidget(button);
}

void AddressBar::complete(const QString& typed)
{
    m_offer->hide();
    stopLooking();
    m_completion = std::make_unique<CompletionJob>(m_keys.sharedNames(), typed, mostCompletions);
    if (m_completing.start(*m_completion))
        showCompletions(m_completion->completions());
    else
        showCompletions({}); // no longer those of what was typed before
}

// By the time that they are found another widget may have got the keyboard, which a list that opens
// would take away from it.
void AddressBar::showCompletions(const QStringList& completions)
{
    if (!m_line->hasFocus())
        return;
    auto& model = static_cast<QStringListModel&>(*m_completer->model());
    model.setStringList(completions);
    m_completer->complete();
}

// What is being looked for is for an address that is no longer the one in the line.
void AddressBar::stopLooking()
{
    m_completing.cancel();
    m_seeking.cancel();
}

// With a completion chosen the completer puts that into the line afterwards.
void AddressBar::submit()
{
    stopLooking();
    if (m_completer->popup()->isVisible())
        QMetaObject::invokeMethod(this, &AddressBar::open, Qt::QueuedConnection);
    else
        open();
}

bool AddressBar::isThere(const QString& path) const
{
    return m_keys.path(m_keys.find(path)) == path;
}

void AddressBar::open()
{
    const QStringList paths = pathsOfAddress(m_line->text());
    const auto found = std::find_if(paths.begin(), paths.end(),
                                    [this](const QString& path) { return isThere(path); });
    if (found != paths.end())
        enter(*found);
    else if (!paths.isEmpty())
        openNearest(paths);
    else
        m_page.report(Report::Error,
                      tr("%1 begins with none of the four root keys.").arg(m_line->text()));
}

// The tree shows the nearest key, but what has been typed stays to be mended.
void AddressBar::openNearest(const QStringList& paths)
{
    const QString typed = m_line->text();
    emit missed(paths.last());
    m_line->setText(typed);
    m_line->setModified(true);
    m_page.report(Report::Warning,
                  tr("There is no key %1.").arg(RegistryPath::shown(paths.last())));
    stopLooking();
    m_nearest = std::make_unique<NearestKeyJob>(m_keys.sharedNames(), paths);
    if (m_seeking.start(*m_nearest))
        offerNearest();
}

void AddressBar::offerNearest()
{
    if (m_nearest->difference() == NearestKeyJob::Difference::None)
        return;
    m_offered = m_nearest->path();
    const QString sentence = m_nearest->difference() == NearestKeyJob::Difference::Case
                                 ? tr("Names are case-sensitive here: %1?")
                                 : tr("There is a key %1: is that the one you mean?");
    m_offerText->setText(withoutLongWords(sentence.arg(RegistryPath::shown(m_offered))));
    m_offer->show();
}
