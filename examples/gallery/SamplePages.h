#pragma once

class QWidget;

/// Pages to slide and to cover. They belong to `parent`, or to whoever takes them.
QWidget* makeFormPage(int fields, QWidget* parent = nullptr);
QWidget* makeTablePage(QWidget* parent = nullptr);
QWidget* makeTextPage(QWidget* parent = nullptr);
