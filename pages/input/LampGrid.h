#pragma once

#include "platform/input/VirtualKeys.h"

#include <QWidget>

#include <vector>

class KeyLamp;

/// Lamps for some virtual keys, column by column. They are one stop for Tab; the arrow keys, Home
/// and End go from lamp to lamp.
class LampGrid : public QWidget
{
    Q_OBJECT

public:
    LampGrid(const std::vector<VirtualKey>& keys, int rows, QWidget* parent = nullptr);

    /// Asks for all of them.
    void refresh();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void stopAt(int lamp);
    int target(int key) const;

    std::vector<KeyLamp*> m_lamps;
    int m_rows;
    int m_stop = 0; ///< the lamp that Tab comes to
};
