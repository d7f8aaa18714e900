#include "editor/problem_model.h"

#include <algorithm>
#include <array>

#include "editor/texts.h"
#include "qt/pictures.h"

namespace plexel {

namespace {

constexpr QSize IconSize(16, 16);
/// More places than that are not followed one by one.
constexpr std::size_t MostSingle = 32;

constexpr std::array headings = {Text::ColumnLevel, Text::ColumnElement, Text::ColumnLayer, Text::ColumnProblem};
static_assert(headings.size() == ProblemModel::ColumnCount);

}  // namespace

ProblemModel::ProblemModel(const LiveProblems& problems, QObject* parent)
    : QAbstractTableModel(parent),
      problems_(problems),
      icons_{PictureIcon(ProblemPicture(ProblemLevel::Error), IconSize),
             PictureIcon(ProblemPicture(ProblemLevel::Warning), IconSize)} {}

void ProblemModel::ErrorsOnly(bool only) {
  errorsOnly_ = only;
  Reset();
}

void ProblemModel::Reset() {
  beginResetModel();
  Fill();
  endResetModel();
}

void ProblemModel::Fill() {
  last_ = {};
  rows_.clear();
  for (int place = 0; place < problems_.PlaceCount(); ++place) {
    const auto level = problems_.LevelOf(place);
    if (!level || (errorsOnly_ && *level != ProblemLevel::Error)) continue;
    const std::vector<Row> rows = RowsOf(static_cast<std::size_t>(place));
    rows_.insert(rows_.end(), rows.begin(), rows.end());
  }
}

void ProblemModel::Update(std::span<const std::size_t> places) {
  last_ = {};
  if (places.size() > MostSingle) return Reset();
  for (const std::size_t place : places) UpdatePlace(place);
}

std::vector<ProblemModel::Row> ProblemModel::RowsOf(std::size_t place) const {
  std::vector<Row> rows;
  const auto add = [&](std::size_t index) {
    rows.push_back({static_cast<std::uint32_t>(place), static_cast<std::uint32_t>(index)});
  };
  if (!errorsOnly_) {
    const ProblemCounts counts = problems_.CountsOf(static_cast<int>(place));
    for (std::size_t index = 0; index < counts.errors + counts.warnings; ++index) add(index);
    return rows;
  }
  const std::vector<Problem>& problems = ProblemsOf(place);
  for (std::size_t index = 0; index < problems.size(); ++index) {
    if (RowOf(problems[index].rule).level == ProblemLevel::Error) add(index);
  }
  return rows;
}

const std::vector<Problem>& ProblemModel::ProblemsOf(std::size_t place) const {
  if (last_.first != place) last_ = {place, problems_.Of(static_cast<int>(place))};
  return last_.second;
}

std::pair<int, int> ProblemModel::Range(std::size_t place) const {
  const auto range = std::ranges::equal_range(rows_, static_cast<std::uint32_t>(place), {}, &Row::place);
  return {static_cast<int>(range.begin() - rows_.begin()), static_cast<int>(range.end() - rows_.begin())};
}

void ProblemModel::UpdatePlace(std::size_t place) {
  const std::vector<Row> rows = RowsOf(place);
  const auto [first, end] = Range(place);
  const int before = end - first, now = static_cast<int>(rows.size()), kept = std::min(before, now);
  const auto at = [&](int row) { return rows_.begin() + row; };
  std::copy_n(rows.begin(), kept, at(first));
  if (kept > 0) emit dataChanged(index(first, 0), index(first + kept - 1, ColumnCount - 1));
  if (before > now) {
    beginRemoveRows({}, first + kept, end - 1);
    rows_.erase(at(first + kept), at(end));
    endRemoveRows();
  } else if (now > before) {
    beginInsertRows({}, end, first + now - 1);
    rows_.insert(at(end), rows.begin() + kept, rows.end());
    endInsertRows();
  }
}

Problem ProblemModel::ProblemOf(int row) const {
  const Row& one = rows_.at(static_cast<std::size_t>(row));
  return ProblemsOf(one.place).at(one.index);
}

int ProblemModel::FirstRowOf(int place) const {
  if (place < 0) return -1;
  const auto [first, end] = Range(static_cast<std::size_t>(place));
  return first == end ? -1 : first;
}

int ProblemModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int ProblemModel::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : ColumnCount; }

QVariant ProblemModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  const bool isText = role == Qt::DisplayRole || role == Qt::AccessibleTextRole;
  if (!isText && role != Qt::ToolTipRole && role != Qt::DecorationRole) return {};
  const Problem problem = ProblemOf(index.row());
  const ProblemLevel level = RowOf(problem.rule).level;
  // What a text holds is shown as it is: none of it is taken for mark-up.
  if (role == Qt::ToolTipRole) {
    const QString text = problems_.ElementOf(problem) + ". " + problems_.WholeText(problem);
    return "<p style='white-space:pre-wrap'>" + text.toHtmlEscaped() + "</p>";
  }
  if (role == Qt::DecorationRole) {
    return index.column() == Level ? QVariant(icons_[static_cast<std::size_t>(level)]) : QVariant();
  }
  switch (index.column()) {
    case Level:
      return LevelText(level);
    case Element:
      return problems_.ElementOf(problem);
    case Layer:
      return LayersText(problem);
    default:
      return problems_.TextOf(problem);
  }
}

QVariant ProblemModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || section < 0 || section >= ColumnCount) return {};
  if (role == Qt::TextAlignmentRole) return static_cast<int>(Qt::AlignLeft | Qt::AlignVCenter);
  return role == Qt::DisplayRole ? QVariant(Say(headings[static_cast<std::size_t>(section)])) : QVariant();
}

}  // namespace plexel
