#pragma once

#include <QCommandLineParser>
#include <QStringList>

/// What a command has been given.
class Arguments
{
public:
    /// `parser` outlives this.
    explicit Arguments(const QCommandLineParser& parser)
        : m_parser(parser), m_positional(parser.positionalArguments())
    {
    }

    int count() const { return m_positional.size(); }
    /// An argument, from 0 on; null where it is not given.
    QString at(int index) const { return m_positional.value(index); }
    QStringList from(int index) const { return m_positional.mid(index); }

    bool has(const char* option) const { return m_parser.isSet(QLatin1String(option)); }
    /// Null where the option is not given.
    QString value(const char* option) const { return m_parser.value(QLatin1String(option)); }

private:
    const QCommandLineParser& m_parser;
    QStringList m_positional;
};
