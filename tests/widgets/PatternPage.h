#pragma once

#include <QImage>
#include <QWidget>

#include <functional>

/// A page on which every device pixel has a colour of its own, with a child widget of the same
/// kind, so that a picture of it tells which page it shows, where, and whether it was scaled.
class PatternPage : public QWidget
{
    Q_OBJECT

public:
    explicit PatternPage(int id, QWidget* parent = nullptr);

    /// The colour at (x, y), in device pixels from the page's corner, child included; transparent
    /// outside the page.
    QRgb colorAt(int x, int y) const;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    int m_id;
    QWidget* m_child = nullptr;
};

/// The first pixel of `picture` that differs from what `expected` gives for its device coordinates,
/// in words; empty when all agree.
std::string firstDifference(const QImage& picture, const std::function<QRgb(int, int)>& expected);
