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

QString deed(Action action)
{
    switch (action) {
    case Action::CreateKey: return ImportTexts::tr("Creates the key");
    case Action::SetValue: return ImportTexts::tr("Sets the value");
    default: return ImportTexts::tr("Deletes the value");
    }
}

} // namespace

QString ImportText::outcome(const ImportPlan::Statement& statement)
{
    switch (statement.outcome) {
    case Outcome::Refused: return ImportTexts::tr("Refused: %1").arg(statement.remark);
    case Outcome::Altered: return statement.remark;
    case Outcome::Done: break;
    }
    return deed(statement.entry.action);
}

QString ImportText::data(const RegFileEntry& entry)
{
    if (entry.action != Action::SetValue)
        return QString();
    QByteArray data = ImportCheck::dataToSet(entry);
    if (entry.type == REG_SZ)
        data.chop(static_cast<int>(sizeof(wchar_t)));
    return registryTypeName(entry.type) + QLatin1Char(' ') + RegistryFormat::data(entry.type, data);
}

QString ImportText::summary(const ImportPlan& plan)
{
    return ImportTexts::tr("As written in the file: %1. Altered: %2. Refused: %3.")
        .arg(plan.count(Outcome::Done))
        .arg(plan.count(Outcome::Altered))
        .arg(plan.count(Outcome::Refused));
}
