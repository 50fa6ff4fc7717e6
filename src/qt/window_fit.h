#pragma once

#include <QSize>

class QWidget;

/// How windows get on with a small screen.
namespace vorelio {

/// What the window's screen has room for, its frame left aside. A screen that is switched off may have no size for a
/// while: that asks nothing of a window.
QSize RoomFor(const QWidget& window);

/// The size of a window with its frame, also before it has been on the screen.
QSize WithFrame(const QWidget& window);

/// Makes a window no larger than its screen. The least size that its design asks for gives way first, for the lists
/// to scroll; where the contents need more room than the screen has (large letters, a small screen), they become a
/// page that scrolls. To be called before a window is first shown.
void FitOnScreen(QWidget& window);

/// The same when the contents have grown. A window that the user has made large stays so.
void FollowContents(QWidget& window);

}  // namespace vorelio
