#pragma once

#include "window/Page.h"

#include <memory>

class DigestJob;
class DigestPanel;
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
    template <typename Panel>
    Panel* addPanel(const QString& caption);
    void digest(const std::shared_ptr<DigestJob>& job);
    void followTab();

    QTabWidget* m_tabs;
    DigestPanel* m_digests;
};
