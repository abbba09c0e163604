#include "window/TableCopyJob.h"

#include <QAbstractItemModel>
#include <QElapsedTimer>

#include <algorithm>
#include <utility>

namespace {

constexpr qint64 stepMilliseconds = 4;

} // namespace

QString TableCopyJob::quoted(QString text)
{
    const auto isSpecial = [](QChar c) {
        return c == u'\t' || c == u'\n' || c == u'\r' || c == u'"';
    };
    if (std::none_of(text.cbegin(), text.cend(), isSpecial))
        return text;
    return u'"' + text.replace(u'"', QStringLiteral("\"\"")) + u'"';
}

TableCopyJob::TableCopyJob(const QAbstractItemModel& model, std::vector<int> rows, Header header)
    : m_model(model), m_rows(std::move(rows))
{
    if (header == WithHeader)
        addHeader();
}

bool TableCopyJob::step()
{
    QElapsedTimer clock;
    clock.start();
    while (m_next < m_rows.size() && clock.elapsed() < stepMilliseconds)
        addRow(m_rows[m_next++]);
    return m_next < m_rows.size();
}

void TableCopyJob::addHeader()
{
    for (int column = 0; column < m_model.columnCount(); ++column) {
        m_text += quoted(m_model.headerData(column, Qt::Horizontal).toString());
        endCell(column);
    }
}

void TableCopyJob::addRow(int row)
{
    for (int column = 0; column < m_model.columnCount(); ++column) {
        const QModelIndex cell = m_model.index(row, column);
        const QVariant whole = cell.data(wholeTextRole);
        m_text += quoted((whole.isValid() ? whole : cell.data()).toString());
        endCell(column);
    }
}

void TableCopyJob::endCell(int column)
{
    m_text += QLatin1Char(column + 1 < m_model.columnCount() ? '\t' : '\n');
}
