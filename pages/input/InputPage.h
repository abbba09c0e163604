#pragma once

#include "window/Page.h"

#include <QTimer>

class CursorPanel;
class FindWindowPanel;
class KeyPanel;

/// What a host library finds of keys, pointer, cursor and windows, live.
class InputPage : public Page
{
    Q_OBJECT

public:
    explicit InputPage(QWidget* parent = nullptr);

    void refresh() override;
    void find() override;

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    KeyPanel* m_keys;
    CursorPanel* m_cursor;
    FindWindowPanel* m_find;
    QTimer m_timer;
};
