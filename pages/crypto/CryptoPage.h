#pragma once

#include "window/Page.h"

class QTabWidget;

/// What the crypto toolkit gives: encryption and decryption, digests and fingerprints, Base64.
class CryptoPage : public Page
{
    Q_OBJECT

public:
    explicit CryptoPage(QWidget* parent = nullptr);

    /// Puts the keyboard into the first field of the tab in view.
    void find() override;

private:
    void followTab();

    QTabWidget* m_tabs;
};
