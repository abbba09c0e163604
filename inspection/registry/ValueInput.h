#pragma once

#include <QByteArray>
#include <QCoreApplication>
#include <QString>

/// Checks what a user types as a value, before anything is written.
class ValueInput
{
    Q_DECLARE_TR_FUNCTIONS(ValueInput)

public:
    /// Reads `text` as data of a type. Numbers are decimal, or hexadecimal after "0x"; bytes are
    /// pairs of hexadecimal digits, with blanks or commas between them.
    ValueInput(unsigned int type, const QString& text);

    bool isValid() const { return m_problem.isEmpty(); }
    /// Why it is refused; empty when it is valid.
    QString problem() const { return m_problem; }
    /// What the registry will make of it other than what was typed; empty when it keeps it.
    QString warning() const { return m_warning; }
    /// Ready for RegSetValueExW.
    QByteArray data() const { return m_data; }

    /// Why a value cannot have this name, or an empty text.
    static QString nameProblem(const QString& name);
    /// Why a new value of this key cannot have this name, or an empty text.
    static QString newNameProblem(const QString& path, const QString& name);
    /// Why a key cannot have this name, or an empty text.
    static QString keyNameProblem(const QString& name);
    /// Why a new key of this one cannot have this name, or an empty text.
    static QString newKeyNameProblem(const QString& parent, const QString& name);

private:
    void readNumber(const QString& text, int size);
    void readBytes(const QString& text);
    void check(unsigned int type);

    QByteArray m_data;
    QString m_problem;
    QString m_warning;
};
