#pragma once

#include "window/Page.h"

#include <QTimer>

class CursorPanel;
class FindWindowPanel;
class KeyPanel;

/// What a host library finds of keys, pointer, cursor and windows, live: asked anew after each
/// event of keyboard or mouse that the program gets, and ten times a second while the page is in
/// view.
class InputPage : public Page
{
    Q_OBJECT

public:
    explicit InputPage(QWidget* parent = nullptr);

    void refresh() override;
    void find() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void lookForChanges() override;

private:
    KeyPanel* m_keys;
    CursorPanel* m_cursor;
    FindWindowPanel* m_find;
    QTimer m_timer;
    QTimer m_delivered; ///< runs out when the events that wait have been delivered
};
