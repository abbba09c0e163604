#pragma once

#include "inspection/fonts/FontCatalogue.h"

#include <QCoreApplication>
#include <QFont>
#include <QSet>

/// How registered fonts look on this system.
class FontPreview
{
    Q_DECLARE_TR_FUNCTIONS(FontPreview)

public:
    /// Asks the system for the families that it has now.
    FontPreview();

    bool isInstalled(const RegisteredFont& font) const;
    /// A line in the font's character set, or that the font is not installed.
    QString sample(const RegisteredFont& font) const;
    /// The font to write the sample in; the application's own where it is not installed.
    QFont font(const RegisteredFont& font) const;

private:
    QSet<QString> m_families;
};
