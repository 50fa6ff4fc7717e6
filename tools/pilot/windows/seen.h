#pragma once

#include <QString>
#include <optional>
#include <string>
#include <string_view>

class QAction;
class QWidget;

namespace vorelio {
class Control;
class ListControl;
class MenuItem;
}  // namespace vorelio

/// What a widget shows of a control's properties, in the pilot's words.
namespace vorelio::pilot {

/// Nothing for a property that the widget doesn't show, or doesn't show now.
std::optional<std::string> SeenProperty(const Control& control, const QWidget& widget, std::string_view property);
std::optional<std::string> SeenProperty(const MenuItem& item, const QAction& action, std::string_view property);

/// The words of a list's row; nothing if the widget has no such row.
std::optional<std::string> SeenRow(const ListControl& list, const QWidget& widget, int row);

}  // namespace vorelio::pilot
