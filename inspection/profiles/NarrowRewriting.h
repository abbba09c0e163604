#pragma once

#include <QCoreApplication>
#include <QString>

/// What the narrow family changes in a file with any write, besides the lines that it loses.
class NarrowRewriting
{
    Q_DECLARE_TR_FUNCTIONS(NarrowRewriting)

public:
    /// Reads the file; a missing one does not change.
    explicit NarrowRewriting(const QString& path);

    /// In sentences; empty where nothing but lost lines would tell the new file from the old one.
    QString changes() const;

private:
    void compare(const QString& text);
    void compareBytes(const QByteArray& bytes, const QString& text);

    int m_blankLines = 0;
    bool m_reorders = false;
    bool m_normalises = false;
    bool m_recodes = false;
};
