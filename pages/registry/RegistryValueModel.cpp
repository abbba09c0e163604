#include "pages/registry/RegistryValueModel.h"

#include "inspection/registry/RegistryFormat.h"
#include "window/GlyphIcon.h"
#include "window/TableCopyJob.h"

#include <QFont>
#include <QFontDatabase>

namespace {

Glyph glyphOf(const ListedValue& value)
{
    if (!value.isReadable())
        return Glyph::Error;
    switch (value.reading().type) {
    case REG_SZ: return Glyph::Text;
    case REG_DWORD:
    case REG_QWORD: return Glyph::Number;
    default: return Glyph::Binary;
    }
}

QVariant look(const ListedValue& value, int role)
{
    if (role == Qt::ToolTipRole && !value.remark().isEmpty())
        return plainToolTip(value.remark());
    if (role != Qt::FontRole || value.isReadable())
        return {};
    QFont font;
    font.setItalic(true);
    return font;
}

QVariant nameLook(const ListedValue& value, int role)
{
    return role == Qt::DecorationRole ? glyphIcon(glyphOf(value)) : look(value, role);
}

bool isNumber(const ListedValue& value)
{
    return value.reading().type == REG_DWORD || value.reading().type == REG_QWORD;
}

QVariant dataLook(const ListedValue& value, int role)
{
    if (role == TableCopyJob::wholeTextRole)
        return value.copiedText();
    const bool isOdd =
        role == Qt::DecorationRole && value.isReadable() && !value.remark().isEmpty();
    return isOdd ? glyphIcon(Glyph::Warning) : look(value, role);
}

QVariant rawLook(const ListedValue& value, int role)
{
    return role == Qt::FontRole ? QFontDatabase::systemFont(QFontDatabase::FixedFont)
                                : look(value, role);
}

SortKey dataKey(const ListedValue& value)
{
    if (!value.isReadable() || !isNumber(value))
        return SortKey::text(value.dataText());
    return SortKey::number(static_cast<double>(RegistryFormat::number(value.reading().data)));
}

std::vector<RecordColumn<ListedValue>> columns()
{
    return {
        {RegistryValueModel::tr("Name"), &ListedValue::name, nameLook},
        {RegistryValueModel::tr("Type"), &ListedValue::typeText, look},
        RecordColumn<ListedValue>(RegistryValueModel::tr("Data"), &ListedValue::dataText, dataLook)
            .sortedBy(dataKey),
        {RegistryValueModel::tr("Stored text (raw)"), &ListedValue::raw, rawLook,
         RegistryValueModel::tr("Raw: the text in the store, which no host library sees")}};
}

} // namespace

RegistryValueModel::RegistryValueModel(QObject* parent)
    : RecordsModel<ListedValue>(columns(), parent)
{
}

void RegistryValueModel::setPath(const QString& path, const RegistryIndex& names)
{
    setRecords(ListedValue::ofKey(path, names));
}

void RegistryValueModel::refresh(int row)
{
    update(row, [](ListedValue& value) { value.forget(); });
}

int RegistryValueModel::rowOf(const QString& name) const
{
    for (int row = 0; row < rowCount(); ++row) {
        if (record(row).name() == name)
            return row;
    }
    return -1;
}
