#pragma once

#include "inspection/host/LoadScope.h"

/// A symbol that is there and is probably meant by one that is not.
struct NearMiss
{
    enum class Kind
    {
        HasCppLinkage, ///< wanted as extern "C"
        HasCLinkage,   ///< wanted as a C++ function
        HasOtherSignature,
        HasOtherVersion,
    };

    Kind kind = Kind::HasOtherSignature;
    QByteArray symbol; ///< with its version where that is what differs
    QString library;   ///< the name of the file that has it

    /// As a whole sentence.
    QString text() const;
};

/// How a symbol that is there differs from one that is wanted; none where the names differ too.
std::optional<NearMiss::Kind> nearMissKind(const QByteArray& wanted, const QByteArray& present);

/// Those of a missing symbol, in the order of the libraries, a few at most.
QVector<NearMiss> nearMisses(const ElfImport& missing, const LoadScope& scope);
