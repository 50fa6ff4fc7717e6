#include "qt/style.h"

#include <QComboBox>
#include <QIcon>
#include <QLineEdit>
#include <QPainter>
#include <QPixmap>
#include <QRegion>
#include <QStyleOption>
#include <algorithm>
#include <cmath>

namespace vorelio {

namespace {

constexpr qreal kRadius = 4;
constexpr qreal kCellRadius = 3;
constexpr qreal kCardRadius = 8;
constexpr int kFieldMargin = 7;
constexpr int kArrowWidth = 22;
constexpr int kCardMargin = 12;

bool Enabled(const QStyleOption& option) { return option.state.testFlag(QStyle::State_Enabled); }

/// A rounded field: its ground, and a border that tells the focus. A field that only shows lies flat on its card, whose
/// ground it nearly has: at a glance it is none to type into.
void DrawField(QPainter& painter, const QRect& rect, const QStyleOption& option, bool focused, qreal radius,
               bool shows_only = false) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  const bool flat = shows_only || !Enabled(option);
  const QPalette& palette = option.palette;
  const QColor ground =
      flat ? Blend(palette.color(QPalette::Light), palette.color(QPalette::Mid), 0.18) : palette.color(QPalette::Base);
  QColor border = flat ? ground : palette.color(QPalette::Mid);
  if (focused) border = option.palette.color(QPalette::Active, QPalette::Highlight);
  const qreal width = focused ? 2 : 1;
  const qreal inset = width / 2;
  painter.setBrush(ground);
  painter.setPen(QPen(border, width));
  painter.drawRoundedRect(QRectF(rect).adjusted(inset, inset, -inset, -inset), radius, radius);
  painter.restore();
}

void DrawButton(QPainter& painter, const QStyleOption& option, bool principal) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  const QPalette& palette = option.palette;
  const bool pressed = option.state & (QStyle::State_Sunken | QStyle::State_On);
  const bool hovered = Enabled(option) && option.state.testFlag(QStyle::State_MouseOver);
  const bool focused = option.state.testFlag(QStyle::State_HasFocus);
  QColor ground = palette.color(QPalette::Button);
  QColor border = palette.color(QPalette::Mid);
  if (principal && Enabled(option)) {
    ground = palette.color(QPalette::Active, QPalette::Highlight);
    border = ground;
  }
  if (hovered) ground = Blend(ground, palette.color(QPalette::Highlight), principal ? 0 : 0.10);
  if (hovered && principal) ground = ground.lighter(110);
  if (pressed) ground = ground.darker(112);
  if (!Enabled(option)) {
    ground = Blend(ground, palette.color(QPalette::Window), 0.6);
    border = Blend(border, palette.color(QPalette::Window), 0.4);
  }
  painter.setBrush(ground);
  painter.setPen(QPen(border, 1));
  painter.drawRoundedRect(QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5), kRadius, kRadius);
  if (focused) {
    const QColor ring = principal ? palette.color(QPalette::HighlightedText) : palette.color(QPalette::Highlight);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(ring, 1.6));
    painter.drawRoundedRect(QRectF(option.rect).adjusted(2.5, 2.5, -2.5, -2.5), kRadius - 1, kRadius - 1);
  }
  painter.restore();
}

void DrawTick(QPainter& painter, const QPointF& middle, qreal side, const QColor& colour) {
  painter.setPen(QPen(colour, 1.8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  const QPointF points[] = {middle + QPointF(-0.26, 0.02) * side, middle + QPointF(-0.07, 0.22) * side,
                            middle + QPointF(0.27, -0.20) * side};
  painter.drawPolyline(points, 3);
}

/// The box of a check box, or the ring of an option button.
void DrawIndicator(QPainter& painter, const QStyleOption& option, bool round) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  const QPalette& palette = option.palette;
  const bool on = option.state.testFlag(QStyle::State_On);
  const int side = std::min(option.rect.width(), option.rect.height());
  QRectF place(0, 0, side - 1, side - 1);
  place.moveCenter(QRectF(option.rect).center());
  const QColor ink =
      Enabled(option) ? palette.color(QPalette::Active, QPalette::Highlight) : palette.color(QPalette::Mid);
  const bool edged = option.state & (QStyle::State_HasFocus | QStyle::State_MouseOver);
  painter.setBrush(on ? ink : palette.color(QPalette::Base));
  painter.setPen(QPen(on || edged ? ink : palette.color(QPalette::PlaceholderText), 1));
  painter.drawRoundedRect(place, round ? side / 2.0 : 3, round ? side / 2.0 : 3);
  if (on && round) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette.color(QPalette::HighlightedText));
    painter.drawEllipse(place.center(), side * 0.2, side * 0.2);
  } else if (on) {
    DrawTick(painter, place.center(), side, palette.color(QPalette::HighlightedText));
  }
  painter.restore();
}

/// The tick in front of a menu entry.
void DrawChosen(QPainter& painter, const QStyleOptionMenuItem& entry) {
  constexpr int kColumn = 24, kSide = 16;
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  const bool selected = entry.state.testFlag(QStyle::State_Selected) && Enabled(entry);
  const QRect column(entry.rect.left(), entry.rect.top(), kColumn, entry.rect.height());
  DrawTick(painter, QStyle::visualRect(entry.direction, entry.rect, column).center(), kSide,
           entry.palette.color(selected ? QPalette::HighlightedText : QPalette::Text));
  painter.restore();
}

void DrawCard(QPainter& painter, const QRect& rect, const QPalette& palette) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setBrush(palette.color(QPalette::Light));
  painter.setPen(QPen(palette.color(QPalette::Midlight), 1));
  painter.drawRoundedRect(QRectF(rect).adjusted(0.5, 0.5, -0.5, -0.5), kCardRadius, kCardRadius);
  painter.restore();
}

/// The straight edge of a list or a text. Where a pixel of the design is no whole number of the screen's, what stands
/// inside may be rounded over a thin line: there the line reaches under it.
void DrawEdge(QPainter& painter, const QRect& rect, const QColor& colour) {
  const double ratio = painter.device()->devicePixelRatioF();
  const int width = ratio == std::floor(ratio) ? 1 : 2;
  const QRegion inside(rect.adjusted(width, width, -width, -width));
  for (const QRect& side : QRegion(rect) - inside) painter.fillRect(side, colour);
}

void DrawArrow(QPainter& painter, const QPointF& middle, const QColor& colour, double angle = 0) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(colour, 1.6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.translate(middle);
  painter.rotate(angle);
  const QPointF points[] = {QPointF(-4, -2), QPointF(0, 2.2), QPointF(4, -2)};
  painter.drawPolyline(points, 3);
  painter.restore();
}

/// A scroll bar whose slider stands out from the list beside it, light or dark.
void DrawScrollBar(QPainter& painter, const QStyleOptionSlider& bar, const QStyle& style, const QWidget* widget) {
  const auto place = [&](QStyle::SubControl part) {
    return QRectF(style.subControlRect(QStyle::CC_ScrollBar, &bar, part, widget));
  };
  const bool upright = bar.orientation == Qt::Vertical;
  const QColor ink = bar.palette.color(QPalette::PlaceholderText), ground = bar.palette.color(QPalette::Window);
  painter.fillRect(bar.rect, ground);
  DrawArrow(painter, place(QStyle::SC_ScrollBarSubLine).center(), ink, upright ? 180 : 90);
  DrawArrow(painter, place(QStyle::SC_ScrollBarAddLine).center(), ink, upright ? 0 : -90);
  if (!Enabled(bar) || bar.minimum == bar.maximum) return;
  const bool held = bar.activeSubControls & QStyle::SC_ScrollBarSlider && bar.state & QStyle::State_Sunken;
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(Blend(ink, ground, held ? 0.1 : 0.4));
  painter.drawRoundedRect(
      place(QStyle::SC_ScrollBarSlider).adjusted(upright ? 3 : 0, upright ? 0 : 3, upright ? -3 : 0, upright ? 0 : -3),
      kRadius, kRadius);
  painter.restore();
}

int TitleHeight(const QStyleOptionGroupBox& box) { return box.text.isEmpty() ? 0 : box.fontMetrics.height() + 6; }

bool Marked(const QWidget* widget, const char* property) { return widget && widget->property(property).toBool(); }

}  // namespace

QColor Blend(const QColor& one, const QColor& other, double share) {
  const auto mix = [share](int a, int b) { return static_cast<int>(std::lround(a * (1 - share) + b * share)); };
  return QColor(mix(one.red(), other.red()), mix(one.green(), other.green()), mix(one.blue(), other.blue()));
}

VorelioStyle::VorelioStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

void VorelioStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                 const QWidget* widget) const {
  switch (element) {
    case PE_PanelLineEdit:
    case PE_FrameLineEdit:
      // The field of a combo box stands on the box's own ground.
      if (widget && qobject_cast<const QComboBox*>(widget->parentWidget())) return;
      if (Marked(widget, "cellule"))
        DrawField(*painter, option->rect, *option, option->state.testFlag(State_HasFocus), kCellRadius);
      else
        DrawField(*painter, option->rect, *option, option->state.testFlag(State_HasFocus), kRadius,
                  option->state.testFlag(State_ReadOnly));
      return;
    case PE_PanelButtonCommand: DrawButton(*painter, *option, Marked(widget, "principal")); return;
    case PE_FrameFocusRect:
      // Buttons and fields show the focus in their own frame.
      if (widget && (widget->inherits("QPushButton") || widget->inherits("QComboBox"))) return;
      break;
    case PE_IndicatorRadioButton: DrawIndicator(*painter, *option, true); return;
    case PE_IndicatorCheckBox: DrawIndicator(*painter, *option, false); return;
    case PE_FrameGroupBox: DrawCard(*painter, option->rect, option->palette); return;
    case PE_Frame:
      if (widget && widget->inherits("QAbstractScrollArea")) {
        DrawEdge(*painter, option->rect,
                 option->palette.color(widget->hasFocus() ? QPalette::Highlight : QPalette::Mid));
        return;
      }
      break;
    case PE_PanelScrollAreaCorner: painter->fillRect(option->rect, option->palette.color(QPalette::Window)); return;
    case PE_FrameStatusBarItem: return;
    default: break;
  }
  QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void VorelioStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                               const QWidget* widget) const {
  if (element == CE_ComboBoxLabel) {
    const auto* box = qstyleoption_cast<const QStyleOptionComboBox*>(option);
    if (!box || box->editable) return;
    const QRect place = proxy()->subControlRect(CC_ComboBox, box, SC_ComboBoxEditField, widget);
    painter->setPen(box->palette.color(QPalette::Text));
    painter->drawText(place.adjusted(2, 0, 0, 0), Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine,
                      box->fontMetrics.elidedText(box->currentText, Qt::ElideRight, place.width()));
    return;
  }
  const auto* entry = element == CE_MenuItem ? qstyleoption_cast<const QStyleOptionMenuItem*>(option) : nullptr;
  if (entry && entry->checkType != QStyleOptionMenuItem::NotCheckable) {
    // One mark for what is chosen, and none for what isn't, whether the entry is one of several or stands alone.
    QStyleOptionMenuItem plain(*entry);
    plain.checkType = QStyleOptionMenuItem::NotCheckable;
    plain.checked = false;
    QProxyStyle::drawControl(element, &plain, painter, widget);
    if (entry->checked) DrawChosen(*painter, *entry);
    return;
  }
  if (element == CE_PushButtonLabel && Marked(widget, "principal") && Enabled(*option)) {
    QStyleOptionButton button(*qstyleoption_cast<const QStyleOptionButton*>(option));
    button.palette.setColor(QPalette::ButtonText, button.palette.color(QPalette::Active, QPalette::HighlightedText));
    QProxyStyle::drawControl(element, &button, painter, widget);
    return;
  }
  QProxyStyle::drawControl(element, option, painter, widget);
}

void VorelioStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                                      const QWidget* widget) const {
  if (control == CC_ComboBox) {
    DrawField(*painter, option->rect, *option, option->state.testFlag(State_HasFocus), kRadius);
    const QRect arrow = proxy()->subControlRect(CC_ComboBox, option, SC_ComboBoxArrow, widget);
    DrawArrow(*painter, QRectF(arrow).center() + QPointF(-1, 0), option->palette.color(QPalette::Text));
    return;
  }
  if (const auto* bar = control == CC_ScrollBar ? qstyleoption_cast<const QStyleOptionSlider*>(option) : nullptr)
    return DrawScrollBar(*painter, *bar, *proxy(), widget);
  if (control == CC_GroupBox) {
    const auto* box = qstyleoption_cast<const QStyleOptionGroupBox*>(option);
    if (!box) return;
    DrawCard(*painter, box->rect, box->palette);
    if (box->text.isEmpty()) return;
    painter->save();
    QFont bold = painter->font();
    bold.setBold(true);
    painter->setFont(bold);
    const QRect title = proxy()->subControlRect(CC_GroupBox, box, SC_GroupBoxLabel, widget);
    proxy()->drawItemText(painter, title, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextShowMnemonic, box->palette,
                          Enabled(*box), box->text, QPalette::WindowText);
    painter->restore();
    return;
  }
  QProxyStyle::drawComplexControl(control, option, painter, widget);
}

QRect VorelioStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                                   const QWidget* widget) const {
  if (control == CC_ComboBox) {
    const QRect all = option->rect;
    if (part == SC_ComboBoxArrow) return {all.right() - kArrowWidth, all.top(), kArrowWidth, all.height()};
    if (part == SC_ComboBoxEditField) return all.adjusted(kFieldMargin - 2, 1, -kArrowWidth - 1, -1);
    if (part == SC_ComboBoxFrame) return all;
  }
  if (const auto* box = control == CC_GroupBox ? qstyleoption_cast<const QStyleOptionGroupBox*>(option) : nullptr) {
    if (part == SC_GroupBoxFrame) return box->rect;
    const QRect inner = box->rect.adjusted(kCardMargin, 6, -kCardMargin, -6);
    if (part == SC_GroupBoxLabel) return {inner.left(), inner.top(), inner.width(), TitleHeight(*box)};
    if (part == SC_GroupBoxContents) return box->rect.adjusted(2, TitleHeight(*box) + 4, -2, -2);
  }
  return QProxyStyle::subControlRect(control, option, part, widget);
}

QSize VorelioStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                                     const QWidget* widget) const {
  switch (type) {
    case CT_LineEdit: {
      if (Marked(widget, "cellule")) return size + QSize(4, 4);
      const QString least(widget ? widget->property("signes").toInt() : 0, u'0');
      const int width = std::max(size.width(), option->fontMetrics.horizontalAdvance(least));
      return {width + 2 * kFieldMargin, option->fontMetrics.height() + 10};
    }
    case CT_ComboBox: return {size.width() + kArrowWidth + 2 * kFieldMargin, option->fontMetrics.height() + 10};
    case CT_PushButton: {
      const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
      const int text = button ? option->fontMetrics.size(Qt::TextShowMnemonic, button->text).width() : size.width();
      return {std::max(text + 20, 76), option->fontMetrics.height() + 12};
    }
    case CT_GroupBox: {
      const auto* box = qstyleoption_cast<const QStyleOptionGroupBox*>(option);
      return size + QSize(4, box ? TitleHeight(*box) + 6 : 6);
    }
    default: return QProxyStyle::sizeFromContents(type, option, size, widget);
  }
}

int VorelioStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
  switch (metric) {
    case PM_DefaultFrameWidth:
      if (qobject_cast<const QLineEdit*>(widget)) return 2;
      return 1;
    case PM_ComboBoxFrameWidth: return 2;
    default: return QProxyStyle::pixelMetric(metric, option, widget);
  }
}

namespace {

/// The sign of a message box: a disc with its character, or an empty pixmap for any other icon.
QPixmap Sign(QStyle::StandardPixmap sign) {
  QColor ground;
  QString character;
  switch (sign) {
    case QStyle::SP_MessageBoxInformation: ground = QColor(0x1D6FA5), character = u'i'; break;
    case QStyle::SP_MessageBoxQuestion: ground = QColor(0x1D6FA5), character = u'?'; break;
    case QStyle::SP_MessageBoxWarning: ground = QColor(0xC77A0A), character = u'!'; break;
    case QStyle::SP_MessageBoxCritical: ground = QColor(0xB3372F), character = u'!'; break;
    default: return {};
  }
  constexpr int kSide = 128;
  QPixmap disc(kSide, kSide);
  disc.fill(Qt::transparent);
  QPainter painter(&disc);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setBrush(ground);
  painter.setPen(Qt::NoPen);
  painter.drawEllipse(6, 6, kSide - 12, kSide - 12);
  QFont font;
  font.setBold(true);
  font.setPixelSize(kSide * 5 / 8);
  painter.setFont(font);
  painter.setPen(Qt::white);
  painter.drawText(QRect(0, 0, kSide, kSide), Qt::AlignCenter, character);
  return disc;
}

}  // namespace

QPixmap VorelioStyle::standardPixmap(StandardPixmap pixmap, const QStyleOption* option, const QWidget* widget) const {
  const QPixmap sign = Sign(pixmap);
  return sign.isNull() ? QProxyStyle::standardPixmap(pixmap, option, widget) : sign;
}

QIcon VorelioStyle::standardIcon(StandardPixmap icon, const QStyleOption* option, const QWidget* widget) const {
  const QPixmap sign = Sign(icon);
  return sign.isNull() ? QProxyStyle::standardIcon(icon, option, widget) : QIcon(sign);
}

int VorelioStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                            QStyleHintReturn* answer) const {
  if (hint == SH_ComboBox_Popup || hint == SH_DialogButtonBox_ButtonsHaveIcons) return 0;
  // A contact that is only shown is still to be read: no light edge around its letters.
  if (hint == SH_EtchDisabledText || hint == SH_DitherDisabledText) return 0;
  return QProxyStyle::styleHint(hint, option, widget, answer);
}

}  // namespace vorelio
