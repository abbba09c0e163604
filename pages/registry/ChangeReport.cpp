#include "pages/registry/ChangeReport.h"

#include "inspection/registry/StoreFault.h"

#include <QCoreApplication>

namespace {

struct ChangeReport
{
    Q_DECLARE_TR_FUNCTIONS(ChangeReport)
};

} // namespace

void reportChange(Page& page, Page::Report kind, const QString& text)
{
    const QString fault = storeFault();
    if (fault.isEmpty())
        page.report(kind, text);
    else
        page.report(Page::Report::Warning, ChangeReport::tr("%1 %2").arg(text, fault));
}
