#pragma once

#include "platform/input/VirtualKeys.h"

#include <QWidget>

/// A lamp that is lit while the key-state service says that its key is down.
class KeyLamp : public QWidget
{
    Q_OBJECT

public:
    explicit KeyLamp(const VirtualKey& key, QWidget* parent = nullptr);

    int code() const { return m_code; }
    bool isLit() const { return m_lit; }

    /// Asks the service.
    void refresh();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    /// It has got the keyboard.
    void focused();

protected:
    void paintEvent(QPaintEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;

private:
    void describe();

    int m_code;
    QString m_name;
    bool m_known;
    bool m_lit = false;
};
