#include "pages/registry/RegistryClipboard.h"

#include "inspection/registry/ListedValue.h"
#include "inspection/registry/RedirectedName.h"
#include "inspection/registry/RegistryPath.h"
#include "inspection/registry/RegistryTextJob.h"
#include "pages/registry/ValueRowsJob.h"
#include "window/PageContext.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QLocale>

namespace {

using Report = PageContext::Report;

} // namespace

RegistryClipboard::RegistryClipboard(PageContext& page, QObject* parent)
    : QObject(parent), m_page(page)
{
}

void RegistryClipboard::copyPath(const QString& path)
{
    const QString shown = RegistryPath::shown(path);
    QGuiApplication::clipboard()->setText(shown);
    m_page.setStatus(tr("Copied %1.").arg(shown));
}

void RegistryClipboard::copyData(const std::vector<ListedValue>& values)
{
    if (values.size() == 1)
        return QGuiApplication::clipboard()->setText(values.front().wholeData());
    if (values.empty())
        return;
    m_page.startJob(tr("Copying"), std::make_unique<ValueRowsJob>(values),
                    [this](const ValueRowsJob& job, bool complete) {
                        if (complete)
                            QGuiApplication::clipboard()->setText(job.text());
                        else
                            m_page.setStatus(tr("Cancelled: nothing was copied."));
                    });
}

void RegistryClipboard::copyKey(const QString& path)
{
    if (isRedirected(path))
        m_page.report(Report::Error, redirectedKeyText(path));
    else
        copy(std::make_unique<RegistryTextJob>(path));
}

void RegistryClipboard::copyValues(const std::vector<ListedValue>& values)
{
    std::vector<RegistryValueName> names;
    for (const ListedValue& value : values) {
        const QString redirection = value.redirection();
        if (!redirection.isEmpty())
            return m_page.report(Report::Error, redirection);
        names.push_back({value.keyToDeleteFrom(), value.name()});
    }
    if (!names.empty())
        copy(std::make_unique<RegistryTextJob>(std::move(names)));
}

void RegistryClipboard::copy(std::unique_ptr<RegistryTextJob> job)
{
    m_page.startJob(tr("Copying"), std::move(job),
                    [this](const RegistryTextJob& done, bool complete) {
                        if (complete)
                            report(done);
                        else
                            m_page.setStatus(tr("Cancelled: nothing was copied."));
                    });
}

void RegistryClipboard::report(const RegistryTextJob& job)
{
    QGuiApplication::clipboard()->setText(job.text());
    const QLocale locale;
    const QString text = tr("Copied as the text of a registry file. Values: %1. Left out: %2.")
                             .arg(locale.toString(job.values()), locale.toString(job.leftOut()));
    if (job.leftOut() > 0)
        m_page.report(Report::Warning, text);
    else
        m_page.setStatus(text);
}
