#pragma once

#include <QCoreApplication>

struct Digests;

/// Words for where digests are not what a stranger expects of a text.
class DigestNotes
{
    Q_DECLARE_TR_FUNCTIONS(DigestNotes)

public:
    /// A line for each; empty when there is nothing to say.
    static QString of(const Digests& digests);
};
