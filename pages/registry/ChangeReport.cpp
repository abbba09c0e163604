#include "pages/registry/ChangeReport.h"

#include "inspection/registry/RedirectedName.h"
#include "inspection/registry/StoreFault.h"

#include <QCoreApplication>

namespace {

struct ChangeReport
{
    Q_DECLARE_TR_FUNCTIONS(ChangeReport)
};

} // namespace

void reportChange(PageContext& page, PageContext::Report kind, const QString& text)
{
    const QString fault = storeFault();
    if (fault.isEmpty())
        page.report(kind, text);
    else
        page.report(PageContext::Report::Warning, ChangeReport::tr("%1 %2").arg(text, fault));
}

bool isRefused(PageContext& page, const QString& why)
{
    if (!why.isEmpty())
        page.report(PageContext::Report::Error,
                    ChangeReport::tr("%1 Nothing was changed.").arg(why));
    return !why.isEmpty();
}

bool isKeyRefused(PageContext& page, const QString& path)
{
    return isRedirected(path) && isRefused(page, redirectedKeyText(path));
}
