#pragma once

#include <QComboBox>

class QTextCodec;

/// Offers encodings for lines that are not UTF-8, those that are likely where the window's language
/// is spoken first.
class ProfileEncodingBox : public QComboBox
{
    Q_OBJECT

public:
    explicit ProfileEncodingBox(QWidget* parent = nullptr);

    /// The chosen encoding; null where the lines are to be shown as the services read them.
    const QTextCodec* codec() const;
};
