#pragma once

#include <QAbstractScrollArea>
#include <QString>
#include <functional>
#include <vector>

#include "project/time_line.h"

namespace plexel {

/// The keys of a PC going down and up: one row a key, whose name stays at the left, and one column an event, the latest
/// in sight.
class TimeLineView : public QAbstractScrollArea {
 public:
  /// Some events in a row that belong together, with a word for them that begins with a sign.
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

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void MeasureBars();

  std::vector<Stretch> stretches_;
  std::vector<Row> rows_;
  int nameWidth_ = 0, columns_ = 0;
};

}  // namespace plexel
