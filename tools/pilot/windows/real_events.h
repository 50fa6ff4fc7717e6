#pragma once

#include <QPoint>
#include <QString>
#include <QWidget>

#include "pilot/way.h"

class QAction;
class QComboBox;

/// Keys and clicks as a keyboard and a mouse make them.
namespace vorelio::pilot {

/// Serves events until none waits any more.
void UntilIdle();

/// One key of the keyboard; Enter is 13.
void Type(QWidget& widget, QChar character);
void Strike(QWidget& widget, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

/// A key for whatever has the focus, an open list or menu included; it repeats by itself `repeats` times, each for what
/// has the focus by then. False for a key that no keyboard has.
bool HoldKey(const KeyStroke& stroke, int repeats);

/// The left button of the mouse, at a place of the widget or on what of it can be clicked.
void Press(QWidget& widget, QPoint place);
void Press(QWidget& widget);
void DoublePress(QWidget& widget, QPoint place);

/// Moves the focus to a widget as the tab key does.
void GoTo(QWidget& widget);

/// Opens the list of a combo box and clicks on its row.
void PickRow(QComboBox& combo, int row);

/// Opens the menus above an entry one by one and clicks on it; false if there is no such way on the screen.
bool PickEntry(QWidget& window, QAction& entry);

}  // namespace vorelio::pilot
