#pragma once

#include <QWidget>

#include <memory>

/// Pages such as an application has: a table of 200 rows, and a form of 40 fields.
std::unique_ptr<QWidget> makeTablePage();
std::unique_ptr<QWidget> makeFormPage();
