#include "inspection/registry/ImportText.h"

#include "inspection/registry/RegistryFormat.h"
#include "platform/WindowsTypes.h"
#include "platform/registry/TypeName.h"

#include <QCoreApplication>

namespace {

using Action = RegFileEntry::Action;
using Outcome = ImportPlan::Outcome;

struct ImportTexts
{
    Q_DECLARE_TR_FUNCTIONS(ImportText)
};

QString deed(const ImportPlan::Statement& statement)
{
    const bool isThere = statement.isThere;
    switch (statement.entry.action) {
    case Action::CreateKey:
        return isThere ? ImportTexts::tr("The key is there already")
                       : ImportTexts::tr("Creates the key");
    case Action::SetValue:
        if (statement.before.isNull())
            return ImportTexts::tr("Sets the value");
        return isThere ? ImportTexts::tr("The value is there already")
                       : ImportTexts::tr("Overwrites the value");
    default: return ImportTexts::tr("Deletes the value");
    }
}

} // namespace

QString ImportText::outcome(const ImportPlan::Statement& statement)
{
    switch (statement.outcome) {
    case Outcome::Refused: return ImportTexts::tr("Refused: %1").arg(statement.remark);
    case Outcome::Altered:
        return statement.isOverwriting()
                   ? ImportTexts::tr("Overwrites the value. %1").arg(statement.remark)
                   : statement.remark;
    case Outcome::Done: break;
    }
    return deed(statement);
}

QString ImportText::data(const RegFileEntry& entry)
{
    if (entry.action != Action::SetValue)
        return QString();
    QByteArray data = entry.data;
    if (entry.type == REG_SZ) {
        data = ImportCheck::dataToSet(entry);
        data.chop(static_cast<int>(sizeof(wchar_t)));
    }
    return registryTypeName(entry.type) + QLatin1Char(' ') + RegistryFormat::data(entry.type, data);
}

QString ImportText::summary(const ImportPlan& plan)
{
    QString text = ImportTexts::tr("As written in the file: %L1. Altered: %L2. Refused: %L3.")
                       .arg(plan.count(Outcome::Done))
                       .arg(plan.count(Outcome::Altered))
                       .arg(plan.count(Outcome::Refused));
    const int overwritten = plan.overwritten();
    if (overwritten == 0)
        return text;
    return text + QLatin1Char(' ') +
           ImportTexts::tr("Values that are overwritten: %L1.").arg(overwritten);
}
