#include "editor/panel_view.h"

#include <QPaintEvent>
#include <QPainter>
#include <QRubberBand>
#include <algorithm>

#include "editor/element_text.h"
#include "editor/problem_texts.h"
#include "qt/panel_painter.h"
#include "qt/pictures.h"
#include "qt/units.h"

namespace plexel {

namespace {
constexpr int SmallestBadge = 11, LargestBadge = 14;
/// How far marks and badges reach beyond a place.
constexpr int Reach = std::max(ChoiceReach, LargestBadge * 2 / 5 + 1);
constexpr int MostDirty = 64;  // single places to be painted anew, before it is the whole view

/// Sprites of other things than bodies.
constexpr std::int32_t TickSprite = 100, BadgeSprite = 200;

/// A LED alone has no legend that a tick could cover.
TickPlace TickOf(enumTactisBaseElementType type) {
  if (type == Led) return TickPlace::AsDesigned;
  return type == Oval || type == OvalLed ? TickPlace::RoundCorner : TickPlace::Corner;
}
}  // namespace

PanelView::PanelView(Selection& selection, QWidget* parent)
    : QWidget(parent), selection_(selection), band_(new QRubberBand(QRubberBand::Rectangle, this)) {
  setFocusPolicy(Qt::StrongFocus);
  setMouseTracking(true);
  setAcceptDrops(true);
  setAttribute(Qt::WA_OpaquePaintEvent);
  selection_.Listen(*this, [this] { SelectionChanged(); });
}

void PanelView::Show(PanelDocument* document) {
  document_ = document;
  focused_ = pressed_ = -1;
  panning_ = spaceHeld_ = false;
  band_->hide();
  placeOf_.clear();
  const int count = document_ == nullptr ? 0 : static_cast<int>(document_->Places().size());
  for (int place = 0; place < count; ++place) placeOf_[At(place).element.get()] = place;
  marked_.assign(static_cast<std::size_t>(count), false);
  found_.assign(static_cast<std::size_t>(count), false);
  MakeIndexes();
  selection_.Reset(count);
  Rescale();
  if (count > 0) Select(0);
}

void PanelView::MakeIndexes() {
  std::vector<QRect> places, parts;
  if (document_ != nullptr) {
    for (const Place& place : document_->Places()) {
      const PanelBox& box = place.part->box;
      places.emplace_back(box.left, box.top, place.element->SizeX(), place.element->SizeY());
    }
    for (const PanelPart& part : document_->ThePanel().parts) parts.push_back(BoundsOf(part));
  }
  places_ = PlaceIndex(std::move(places));
  parts_ = PlaceIndex(std::move(parts));
}

ctlPlexelBaseElement* PanelView::Selected() const {
  const int place = document_ == nullptr ? -1 : selection_.Current();
  return place < 0 ? nullptr : At(place).element.get();
}

void PanelView::Select(int place) { selection_.Only(place); }

void PanelView::Rescale() {
  if (document_ == nullptr) return update();
  const Panel& panel = document_->ThePanel();
  const QSize size = QSize(panel.width, panel.height) * document_->Zoom() / 100;
  setMinimumSize(size + QSize(2 * Margin, 2 * Margin));
  update();
}

QPoint PanelView::Origin() const {
  const QSize panel = QSize(document_->ThePanel().width, document_->ThePanel().height) * document_->Zoom() / 100;
  return {std::max(Margin, (width() - panel.width()) / 2), std::max(Margin, (height() - panel.height()) / 2)};
}

const Surface& PanelView::SurfaceAt(int place) const {
  followsZoom_ = true;
  const Surface& surface = document_->SurfaceAt(static_cast<std::size_t>(place));
  followsZoom_ = false;
  return surface;
}

QRect PanelView::PlaceRect(int place) const {
  const PanelBox& box = At(place).part->box;
  const Surface& surface = SurfaceAt(place);
  const QPoint corner = Origin() + QPoint(box.left, box.top) * document_->Zoom() / 100;
  return {corner, QSize(ToPixels(surface.Width), ToPixels(surface.Height))};
}

QRect PanelView::OnPanel(const QRect& area) const {
  const double scale = document_->Zoom() / 100.0;
  const QRectF local = QRectF(area.translated(-Origin()));
  const QRectF panel(local.topLeft() / scale, local.size() / scale);
  return panel.toAlignedRect().adjusted(-1, -1, 1, 1);
}

std::vector<int> PanelView::PlacesIn(const QRect& area) const {
  if (document_ == nullptr) return {};
  std::vector<int> places = places_.Meeting(OnPanel(area));
  std::erase_if(places, [&](int place) { return !PlaceRect(place).intersects(area); });
  return places;
}

int PanelView::PlaceAt(const QPoint& point) const {
  const std::vector<int> places = PlacesIn(QRect(point, QSize(1, 1)));
  return places.empty() ? -1 : places.back();
}

void PanelView::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  painter.fillRect(event->rect(), palette().window());
  dirty_ = 0;
  if (document_ == nullptr) return;
  painter.setRenderHint(QPainter::Antialiasing);
  // A picture that is drawn along an edge and another shows two strips, and not all between them.
  std::vector<int> parts, places;
  const auto add = [](std::vector<int>& all, const std::vector<int>& some) {
    all.insert(all.end(), some.begin(), some.end());
  };
  for (const QRect& exposed : event->region()) {
    add(parts, parts_.Meeting(OnPanel(exposed)));
    add(places, PlacesIn(exposed.adjusted(-Reach, -Reach, Reach, Reach)));
  }
  for (std::vector<int>* const numbers : {&parts, &places}) {
    std::ranges::sort(*numbers);
    numbers->erase(std::unique(numbers->begin(), numbers->end()), numbers->end());
  }
  PaintParts(painter, parts);
  for (const int place : places) PaintPlace(painter, place);
  for (const int place : places) PaintBadge(painter, place);
}

void PanelView::PaintParts(QPainter& painter, const std::vector<int>& parts) {
  const qreal scale = document_->Zoom() / 100.0;
  const QPointF origin = Origin();
  const QTransform onView = painter.transform();
  const QTransform onPanel = QTransform(onView).translate(origin.x(), origin.y()).scale(scale, scale);
  for (const int number : parts) {
    const PanelPart& part = document_->ThePanel().parts[static_cast<std::size_t>(number)];
    const PanelBox& box = part.box;
    painter.setTransform(onView);
    sprites_.Draw(painter,
                  {static_cast<std::int32_t>(part.kind), box.width, box.height, part.fillColor, part.lineColor,
                   part.cornerRadius},
                  origin + QPointF(box.left, box.top) * scale, scale, QRectF(-1, -1, box.width + 2, box.height + 2),
                  [&](QPainter& onto) {
                    PanelPart body = part;
                    body.box.left = body.box.top = 0;
                    DrawBody(onto, body);
                  });
    if (part.legend.empty()) continue;
    painter.setTransform(onPanel);
    DrawLegend(painter, part);
  }
  painter.setTransform(onView);
}

void PanelView::PaintPlace(QPainter& painter, int place) {
  const ctlPlexelBaseElement& element = *At(place).element;
  const Surface& surface = SurfaceAt(place);
  const QRect box = PlaceRect(place);
  const bool told = layer_ == AllLayersShown || IsDefinedOn(element, layer_);
  const TickPlace tick = told ? TickOf(element.ElementType()) : TickPlace::Nowhere;
  painter.save();
  painter.translate(box.topLeft());
  DrawSurface(painter, surface, tick == TickPlace::AsDesigned ? tick : TickPlace::Nowhere);
  painter.restore();
  const QRectF tickBounds = CornerTickBounds(surface, tick);
  if (!tickBounds.isEmpty()) {
    sprites_.Draw(painter, {TickSprite + static_cast<int>(tick), box.width(), box.height(), surface.linOK1.BorderColor},
                  box.topLeft(), 1, tickBounds, [&](QPainter& onto) { DrawCornerTick(onto, surface, tick); });
  }
  if (labels_ && element.ElementType() != Led)
    DrawLabel(painter, box, LabelText(element, layer_), document_->Zoom() / 100.0);
  if (found_[static_cast<std::size_t>(place)]) DrawFound(painter, box);
  if (marked_[static_cast<std::size_t>(place)]) DrawChoice(painter, box, palette().highlight().color());
}

QRect PanelView::BadgeRect(int place) const {
  const int size = std::clamp(LargestBadge * document_->Zoom() / 100, SmallestBadge, LargestBadge);
  const QPoint corner = PlaceRect(place).topLeft() - QPoint(size, size) * 2 / 5;
  return {corner, QSize(size, size)};
}

void PanelView::PaintBadge(QPainter& painter, int place) {
  const auto level = problemOf ? problemOf(place) : std::nullopt;
  if (!level) return;
  const QRect box = BadgeRect(place);
  sprites_.Draw(painter, {BadgeSprite + static_cast<int>(*level), box.width()}, box.topLeft(), 1,
                QRectF(QPointF(), box.size()),
                [&](QPainter& onto) { DrawPicture(onto, ProblemPicture(*level), QRectF(QPointF(), box.size())); });
}

void PanelView::BadgesChanged(std::span<const std::size_t> places) {
  for (const std::size_t place : places) UpdatePlace(static_cast<int>(place));
}

void PanelView::UpdatePlace(int place) {
  if (dirty_ > MostDirty) return;
  if (++dirty_ > MostDirty) return update();
  update(PlaceRect(place).adjusted(-Reach, -Reach, Reach, Reach));
}

void PanelView::ElementChanged(const ctlPlexelBaseElement& element) {
  if (followsZoom_ || dirty_ > MostDirty) return;
  const auto place = placeOf_.find(&element);
  if (place != placeOf_.end()) UpdatePlace(place->second);
}

void PanelView::Layer(std::int32_t layer) {
  layer_ = layer;
  update();
}

void PanelView::Labels(bool shown) {
  labels_ = shown;
  update();
}

void PanelView::Found(const std::vector<int>& places) {
  std::vector<bool> found(found_.size(), false);
  for (const int place : places) found[static_cast<std::size_t>(place)] = true;
  if (found == found_) return;
  found_ = std::move(found);
  update();
}

void PanelView::SelectionChanged() {
  if (document_ == nullptr) return;
  // The current element alone is told by the mark of its focus.
  const bool many = selection_.IsMany();
  for (int place = 0; place < selection_.Count(); ++place) {
    const bool marked = many && selection_.Has(place);
    if (marked_[static_cast<std::size_t>(place)] == marked) continue;
    marked_[static_cast<std::size_t>(place)] = marked;
    UpdatePlace(place);
  }
  if (selection_.Current() != focused_) {
    run([this] { MoveFocus(selection_.Current()); });
  }
}

void PanelView::MoveFocus(int place) {
  const int previous = std::exchange(focused_, place);
  if (previous >= 0) {
    UpdatePlace(previous);
    const auto element = At(previous).element;
    element->UserControl_LostFocus();
    element->FocusVisible(False);
  }
  if (place < 0) return;
  UpdatePlace(place);
  const auto element = At(place).element;
  element->FocusVisible(True);
  element->UserControl_GotFocus();
}

void PanelView::ExtendTo(int place) {
  const int anchor = selection_.Anchor() < 0 ? place : selection_.Anchor();
  const QRect range = PlaceRect(anchor) | PlaceRect(place);
  std::vector<int> places = PlacesIn(range);
  std::erase_if(places, [&](int one) { return !range.contains(PlaceRect(one).center()); });
  selection_.Choose(places, place);
}

}  // namespace plexel
