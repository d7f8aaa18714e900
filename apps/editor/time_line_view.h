#pragma once

#include <QAbstractScrollArea>
#include <QString>
#include <functional>
#include <vector>

#include "project/time_line.h"

namespace plexel {

/// The keys of a PC going down and up: one row a key, whose name stays at the left, and one column an event, the latest
/// in sight. The columns of a stretch are wide enough for its word.
class TimeLineView : public QAbstractScrollArea {
 public:
  /// Some events in a row that belong together, at least one, with a word for them.
  struct Stretch {
    QString word;
    std::size_t events = 0;
  };
  struct Row {
    QString name;
    std::vector<TimeMark> marks;
    bool stays = false;  ///< the key is down though nothing holds it
  };

  explicit TimeLineView(QWidget* parent = nullptr);
  void Show(std::vector<Stretch> stretches, std::vector<Row> rows);
  const std::vector<Row>& Rows() const { return rows_; }
  /// The words of the stretches as they are shown.
  std::vector<QString> Words() const;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void MeasureColumns();
  void MeasureBars();

  std::vector<Stretch> stretches_;
  std::vector<Row> rows_;
  int nameWidth_ = 0;
  std::vector<int> edges_ = {0};  ///< the left edges of the columns from the first one's, and the right one of the last
};

}  // namespace plexel
