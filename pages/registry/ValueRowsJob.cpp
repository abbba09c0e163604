#include "pages/registry/ValueRowsJob.h"

#include "window/TableCopyJob.h"

#include <QElapsedTimer>
#include <QStringList>

namespace {

constexpr qint64 stepMilliseconds = 4;

QString row(const ListedValue& value)
{
    const QStringList cells{TableCopyJob::quoted(value.name()), value.typeText(),
                            TableCopyJob::quoted(value.copiedText())};
    return cells.join(QLatin1Char('\t'));
}

} // namespace

bool ValueRowsJob::step()
{
    QElapsedTimer clock;
    clock.start();
    while (m_next < m_values.size() && clock.elapsed() < stepMilliseconds) {
        if (m_next > 0)
            m_text += QLatin1Char('\n');
        m_text += row(m_values[m_next++]);
    }
    return m_next < m_values.size();
}
