#include "editor/overview_model.h"

#include <QBrush>
#include <QGuiApplication>
#include <QPalette>
#include <algorithm>
#include <numeric>

#include "editor/element_text.h"
#include "editor/texts.h"
#include "forms/characters.h"
#include "qt/units.h"

namespace plexel {

namespace {

constexpr std::array headings = {Text::ColumnElement, Text::ColumnKind, Text::ColumnLayer, Text::ColumnPress,
                                 Text::ColumnRelease, Text::ColumnLed,  Text::ColumnNote,  Text::ColumnProblem};
static_assert(headings.size() == OverviewModel::ColumnCount);

const QColor errorColour(0xA1, 0x12, 0x12), markColour(0xFF, 0xE0, 0x8A), markedText(0x1C, 0x27, 0x33);

/// A text as it is sorted: without case, numbers by their value.
std::string SortKey(std::string_view text) {
  constexpr std::size_t digits = 10;
  const std::string folded = characters::Folded(text);
  std::string key;
  for (std::size_t place = 0; place < folded.size();) {
    const std::size_t end = std::min(folded.find_first_not_of("0123456789", place), folded.size());
    if (end == place) {
      key += folded[place++];
      continue;
    }
    if (end - place < digits) key.append(digits - (end - place), '0');
    key.append(folded, place, end - place);
    place = end;
  }
  return key;
}

}  // namespace

void OverviewModel::Show(const PanelDocument* document) {
  document_ = document;
  entries_.clear();
  entries_.resize(document == nullptr ? 0 : document->Places().size());
  if (!told_) told_ = ReportWordsInForce();
  Arrange();
}

void OverviewModel::Retranslate() {
  told_ = ReportWordsInForce();
  std::ranges::fill(entries_, std::nullopt);
  Arrange();
  emit headerDataChanged(Qt::Horizontal, 0, ColumnCount - 1);
}

void OverviewModel::ProblemsReset() {
  std::ranges::fill(entries_, std::nullopt);
  Arrange();
}

void OverviewModel::Changed(std::span<const std::size_t> places) {
  if (document_ == nullptr) return;
  for (const std::size_t place : places) entries_[place].reset();
  // An edit leaves its row where it stands; rows come and go with what is found.
  bool same = true;
  for (const std::size_t place : places) {
    for (int line = static_cast<int>(place) * LayerCount; same && line < static_cast<int>(place + 1) * LayerCount;
         ++line) {
      same = IsFound(line) == (rowOf_[static_cast<std::size_t>(line)] >= 0);
    }
  }
  if (!same) return Arrange();
  if (rowCount() > 0) emit dataChanged(index(0, 0), index(rowCount() - 1, ColumnCount - 1));
}

void OverviewModel::Look(TextSearch search) {
  words_ = std::move(search);
  keys_ = KeySearch();
  Arrange();
}

void OverviewModel::Look(KeySearch search) {
  keys_ = std::move(search);
  words_ = TextSearch();
  Arrange();
}

std::vector<int> OverviewModel::PlacesShown() const {
  std::vector<int> places;
  for (std::size_t line = 0; line < rowOf_.size(); ++line) {
    const int place = static_cast<int>(line) / LayerCount;
    if (rowOf_[line] >= 0 && (places.empty() || places.back() != place)) places.push_back(place);
  }
  return places;
}

int OverviewModel::RowOf(int place, std::int32_t layer) const {
  if (place < 0) return -1;
  const std::size_t first = static_cast<std::size_t>(place) * LayerCount;
  if (first >= rowOf_.size()) return -1;
  if (layer > 0) return rowOf_[first + static_cast<std::size_t>(layer - 1)];
  int row = -1;
  for (std::size_t line = first; line < first + LayerCount; ++line) {
    if (rowOf_[line] >= 0 && (row < 0 || rowOf_[line] < row)) row = rowOf_[line];
  }
  return row;
}

const ctlPlexelBaseElement& OverviewModel::ElementAt(int place) const {
  return *document_->Places()[static_cast<std::size_t>(place)].element;
}

const OverviewModel::Entry& OverviewModel::At(int place) const {
  std::optional<Entry>& entry = entries_[static_cast<std::size_t>(place)];
  if (entry) return *entry;
  entry.emplace();
  entry->rows = RowsOf(ElementAt(place), *told_);
  for (ReportRow& row : entry->rows) row.kind = KindText(ElementAt(place).ElementType()).toStdString();
  AddProblems(place, *entry);
  for (std::size_t layer = 0; layer < LayerCount; ++layer) {
    entry->searchable[layer] = SearchableText(entry->rows[layer], entry->problems[layer]);
  }
  return *entry;
}

/// A problem of no layer stands in the first one.
void OverviewModel::AddProblems(int place, Entry& entry) const {
  const auto add = [&](std::size_t layer, const Problem& problem) {
    std::string& text = entry.problems[layer];
    text += (text.empty() ? "" : "\n") + problems_.PlainText(problem);
    if (plexel::RowOf(problem.rule).level == ProblemLevel::Error) entry.hasError[layer] = true;
  };
  for (const Problem& problem : problems_.Of(place)) {
    if (problem.layers.empty()) add(0, problem);
    for (const std::int32_t layer : problem.layers) add(static_cast<std::size_t>(layer - 1), problem);
  }
}

const ReportRow& OverviewModel::LineAt(int line) const {
  return At(line / LayerCount).rows[static_cast<std::size_t>(line % LayerCount)];
}

std::string_view OverviewModel::TextOf(int line, int column) const {
  const ReportRow& row = LineAt(line);
  switch (column) {
    case ElementColumn:
      return row.element;
    case KindColumn:
      return row.kind;
    case PressColumn:
      return row.press;
    case ReleaseColumn:
      return row.release;
    case LedColumn:
      return row.led;
    case NoteColumn:
      return row.note;
    case ProblemColumn:
      return At(line / LayerCount).problems[static_cast<std::size_t>(line % LayerCount)];
    default:
      return {};
  }
}

KeySearch::Found OverviewModel::KeysFound(int line) const {
  return keys_.In(ElementAt(line / LayerCount).TactisBaseElementScanCodeBuffer(), line % LayerCount + 1);
}

bool OverviewModel::IsFound(int line) const {
  if (!keys_.IsEmpty()) return static_cast<bool>(KeysFound(line));
  return words_.IsEmpty() ||
         words_.Finds(At(line / LayerCount).searchable[static_cast<std::size_t>(line % LayerCount)]);
}

bool OverviewModel::IsMarked(int line, int column) const {
  if (!keys_.IsEmpty()) {
    if (column != PressColumn && column != ReleaseColumn) return false;
    const KeySearch::Found found = KeysFound(line);
    return column == PressColumn ? found.press : found.release;
  }
  return !words_.IsEmpty() && words_.Marks(TextOf(line, column));
}

void OverviewModel::Arrange() {
  beginResetModel();
  order_.clear();
  for (int line = 0; line < LineCount(); ++line) {
    if (IsFound(line)) order_.push_back(line);
  }
  if (sortedBy_ >= 0) SortLines(order_);
  rowOf_.assign(static_cast<std::size_t>(LineCount()), -1);
  for (std::size_t row = 0; row < order_.size(); ++row) {
    rowOf_[static_cast<std::size_t>(order_[row])] = static_cast<int>(row);
  }
  endResetModel();
}

/// Empty cells stand last whatever the direction, and lines that are alike in the order of the project.
void OverviewModel::SortLines(std::vector<int>& lines) const {
  if (sortedBy_ == LayerColumn) {
    std::ranges::stable_sort(lines, [this](int a, int b) {
      const int first = a % LayerCount, second = b % LayerCount;
      return descending_ ? first > second : first < second;
    });
    return;
  }
  struct Keyed {
    int line;
    std::string key;
  };
  std::vector<Keyed> keyed;
  keyed.reserve(lines.size());
  for (const int line : lines) keyed.push_back({line, SortKey(TextOf(line, sortedBy_))});
  std::ranges::stable_sort(keyed, [this](const Keyed& a, const Keyed& b) {
    if (a.key.empty() || b.key.empty()) return !a.key.empty();
    return descending_ ? a.key > b.key : a.key < b.key;
  });
  std::ranges::transform(keyed, lines.begin(), &Keyed::line);
}

void OverviewModel::sort(int column, Qt::SortOrder order) {
  sortedBy_ = column;
  descending_ = order == Qt::DescendingOrder;
  Arrange();
}

int OverviewModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(order_.size());
}

int OverviewModel::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : ColumnCount; }

QVariant OverviewModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || index.row() >= rowCount()) return {};
  const int line = order_[static_cast<std::size_t>(index.row())], column = index.column();
  switch (role) {
    case Qt::DisplayRole:
      if (column == LayerColumn) return LayerOf(index.row());
      return ToQt(TextOf(line, column)).simplified();
    case Qt::EditRole:
      if (column == LedColumn) return static_cast<int>(ElementOf(index.row()).LEDTypeLayer(LayerOf(index.row())));
      return ToQt(TextOf(line, column));
    case Qt::ToolTipRole:
      return "<p style='white-space:pre-wrap'>" + ToQt(TextOf(line, column)).toHtmlEscaped() + "</p>";
    case Qt::BackgroundRole:
      return IsMarked(line, column) ? QVariant(QBrush(markColour)) : QVariant();
    case Qt::ForegroundRole:
      if (IsMarked(line, column)) return QBrush(markedText);
      if (column == ProblemColumn && At(line / LayerCount).hasError[static_cast<std::size_t>(line % LayerCount)]) {
        const bool dark = QGuiApplication::palette().base().color().lightness() < 128;
        return QBrush(dark ? errorColour.lighter(250) : errorColour);
      }
      return {};
    default:
      return {};
  }
}

bool OverviewModel::setData(const QModelIndex& index, const QVariant& value, int role) {
  if (role != Qt::EditRole || !(flags(index) & Qt::ItemIsEditable) || value == data(index, Qt::EditRole)) return false;
  if (index.column() == NoteColumn && onNote) onNote(PlaceOf(index.row()), value.toString());
  if (index.column() == LedColumn && onLed) {
    onLed(PlaceOf(index.row()), LayerOf(index.row()), static_cast<enumLedType>(value.toInt()));
  }
  return true;
}

QVariant OverviewModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
  return Say(headings[static_cast<std::size_t>(section)]);
}

Qt::ItemFlags OverviewModel::flags(const QModelIndex& index) const {
  Qt::ItemFlags flags = QAbstractTableModel::flags(index);
  if (!index.isValid()) return flags;
  const ctlPlexelBaseElement& element = ElementOf(index.row());
  const enumTactisBaseElementType type = element.ElementType();
  const bool hasLed = type == Led || type == OvalLed || type == RectLed;
  const bool ledOfLayer = LayerOf(index.row()) == 1 || IsTrue(element.VantaEnabled());
  if (index.column() == NoteColumn && type != Key) flags |= Qt::ItemIsEditable;
  if (index.column() == LedColumn && hasLed && ledOfLayer) flags |= Qt::ItemIsEditable;
  return flags;
}

}  // namespace plexel
