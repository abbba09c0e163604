#pragma once

#include <QAccessible>

/// Tells assistive tools what a widget of our own is, where its class says too little. A button
/// keeps its press action, and one that can be checked is selected while it is. Call it
/// before the widget gets its texts: an assistive tool is told of those, and then keeps the role.
void setAccessibleRole(QWidget& widget, QAccessible::Role role);
