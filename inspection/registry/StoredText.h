#pragma once

#include <QCoreApplication>
#include <QVariant>

/// Explains what the registry makes of an entry's stored text.
class StoredText
{
    Q_DECLARE_TR_FUNCTIONS(StoredText)

public:
    /// Takes the raw entry, for the explanation alone: whether it can be read, the service says.
    explicit StoredText(const QVariant& entry);

    /// Why a host library cannot read it, in words.
    QString whyUnreadable() const;

    /// What it reads other than it was meant, in words; empty when nothing is amiss.
    QString warning() const;

private:
    bool hasTag() const { return m_dollar > 0; }
    QString numberWarning() const;
    QString hexWarning() const;

    QVariant m_entry;
    QString m_text;
    int m_dollar;
    int m_tag = 0;
    bool m_tagIsNumber = false;
};
