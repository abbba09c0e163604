#pragma once

#include <QWidget>

/// The three animated widgets side by side, each with its parameters.
class GalleryWindow : public QWidget
{
public:
    explicit GalleryWindow(QWidget* parent = nullptr);
};
