#include "editor/report_pdf.h"

#include <QAbstractTextDocumentLayout>
#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextObjectInterface>
#include <algorithm>

#include "editor/element_text.h"
#include "editor/texts.h"
#include "project/problems.h"
#include "project/report.h"
#include "qt/fonts.h"
#include "qt/panel_painter.h"
#include "qt/units.h"

namespace plexel {

namespace {

constexpr int PictureKind = QTextFormat::UserObject + 1;
constexpr double Margin = 12, Footer = 8, PictureHeight = 150;  // millimetres
constexpr int Resolution = 300;

double Dots(double millimetres) { return millimetres / 25.4 * Resolution; }

/// The picture of a panel as a part of a text, drawn as lines and not as an image.
class PanelPicture : public QObject, public QTextObjectInterface {
 public:
  PanelPicture(const Panel& panel, double width) : panel_(panel) {
    scale_ = std::min(width / std::max(panel.width, 1), Dots(PictureHeight) / std::max(panel.height, 1));
  }
  void* qt_metacast(const char* name) override {
    if (qstrcmp(name, qobject_interface_iid<QTextObjectInterface*>()) == 0) {
      return static_cast<QTextObjectInterface*>(this);
    }
    return QObject::qt_metacast(name);
  }
  QSizeF intrinsicSize(QTextDocument*, int, const QTextFormat&) override {
    return {panel_.width * scale_, panel_.height * scale_};
  }
  void drawObject(QPainter* painter, const QRectF& box, QTextDocument*, int, const QTextFormat&) override {
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->translate(box.topLeft());
    painter->scale(scale_, scale_);
    for (const PanelPart& part : panel_.parts) {
      DrawPart(*painter, part);
      if (part.element && part.legend != part.element->id) DrawPlace(*painter, part);
    }
    painter->restore();
  }

 private:
  /// The place of an element that does not bear it as its legend, in small letters above it.
  static void DrawPlace(QPainter& painter, const PanelPart& part) {
    constexpr int size = 10;
    QFont font = DialogFont();
    font.setPixelSize(size);
    painter.setFont(font);
    painter.setPen(QColor(0x4A, 0x5A, 0x69));
    const QRectF above(part.box.left - 50, std::max(part.box.top - size - 4, 0), part.box.width + 100, size + 4);
    painter.drawText(above, Qt::AlignCenter, ToQt(part.element->id));
  }

  const Panel& panel_;
  double scale_ = 1;
};

QString Escaped(std::string_view text) { return ToQt(text).toHtmlEscaped(); }
QString Heading(const std::string& text) { return "<h3>" + Escaped(text) + "</h3>"; }

/// What a row tells beside the element's own numbers.
bool TellsSomething(const ReportRow& row) {
  return !(row.press.empty() && row.release.empty() && row.pressBytes.empty() && row.releaseBytes.empty() &&
           row.led.empty());
}

QString Legend(const PanelDocument& document, const ReportWords& words) {
  QString lines;
  for (const PanelDocument::Place& place : document.Places()) {
    const QStringList told = DefinitionText(*place.element);
    if (told.isEmpty()) continue;
    lines += "<tr><td width='14%'><b>" + Escaped(place.element->Name()) + "</b></td><td>" +
             told.join('\n').toHtmlEscaped().replace('\n', "<br>") + "</td></tr>";
  }
  return lines.isEmpty()
             ? QString()
             : Heading(words[ReportWord::Legend]) + "<table width='100%' cellpadding='2'>" + lines + "</table>";
}

QString Sent(const std::string& text, const std::string& bytes) {
  if (bytes.empty()) return "<td>" + Escaped(text) + "</td>";
  return "<td>" + Escaped(text) + "<br><font size='1' color='#4a5a69'>" + Escaped(bytes) + "</font></td>";
}

QString Row(const ReportRow& row, bool first) {
  const QString kind = first ? "<br><font size='1' color='#4a5a69'>" + Escaped(row.kind) + "</font>" : QString();
  const QString layer = TellsSomething(row) ? QString::number(row.layer) : QString();
  return "<tr><td><b>" + Escaped(row.element) + "</b>" + kind + "</td><td>" + layer + "</td>" +
         Sent(row.press, row.pressBytes) + Sent(row.release, row.releaseBytes) + "<td>" + Escaped(row.led) +
         "</td><td>" + (first ? Escaped(row.note).replace('\n', "<br>") : QString()) + "</td></tr>";
}

QString Table(const PanelDocument& document, const ReportWords& words) {
  struct Column {
    Text text;
    int percent;
  };
  constexpr std::array columns = {Column{Text::ColumnElement, 15}, Column{Text::ColumnLayer, 8},
                                  Column{Text::ColumnPress, 23},   Column{Text::ColumnRelease, 18},
                                  Column{Text::ColumnLed, 18},     Column{Text::ColumnNote, 18}};
  QString table = Heading(words[ReportWord::Elements]) +
                  "<table width='100%' border='1' style='border-collapse:collapse' cellpadding='3'><thead><tr>";
  for (const Column& column : columns) {
    table += "<th align='left' bgcolor='#e9eef2' width='" + QString::number(column.percent) + "%'>" +
             Say(column.text).toHtmlEscaped() + "</th>";
  }
  table += "</tr></thead>";
  for (const PanelDocument::Place& place : document.Places()) {
    const auto rows = RowsOf(*place.element, words);
    bool told = false;
    for (const ReportRow& row : rows) {
      if (!TellsSomething(row) && (told || &row != &rows.back())) continue;
      table += Row(row, !told);
      told = true;
    }
  }
  return table + "</table>";
}

QString ProblemList(const PanelDocument& document, const ReportWords& words) {
  QString list = Heading(words[ReportWord::Problems]);
  const Problems problems(document);
  for (const Problem& problem : problems.All()) {
    QStringList layers;
    for (const std::int32_t layer : problem.layers) layers.append(QString::number(layer));
    const QString where = layers.isEmpty() ? QString() : ", " + Say(Text::ColumnLayer) + ' ' + layers.join(", ");
    const bool error = RowOf(problem.rule).level == ProblemLevel::Error;
    list += QString("<p><font color='%1'>").arg(error ? "#a11212" : "#1c2733") + "<b>" +
            Escaped(problems.Element(problem.element).Name()) + "</b>" + where.toHtmlEscaped() + ": " +
            Escaped(problems.Text(problem, words.problems)) + "</font></p>";
  }
  return problems.Errors() + problems.Warnings() > 0 ? list
                                                     : list + "<p>" + Escaped(words[ReportWord::NoProblems]) + "</p>";
}

/// Writes the pages of a text, each with a line at its foot.
void Print(QTextDocument& text, QPdfWriter& writer, const QString& name) {
  const QSizeF page(writer.width(), writer.height() - Dots(Footer));
  text.setPageSize(page);
  QPainter painter(&writer);
  const int pages = text.pageCount();
  for (int number = 0; number < pages; ++number) {
    if (number > 0) writer.newPage();
    painter.save();
    painter.translate(0, -number * page.height());
    QAbstractTextDocumentLayout::PaintContext context;
    context.clip = QRectF(0, number * page.height(), page.width(), page.height());
    context.palette.setColor(QPalette::Text, Qt::black);
    painter.setClipRect(context.clip);
    text.documentLayout()->draw(&painter, context);
    painter.restore();
    const QRectF foot(0, page.height(), page.width(), Dots(Footer));
    QFont font = text.defaultFont();
    font.setPointSizeF(8);
    painter.setFont(font);
    painter.setPen(QColor(0x4A, 0x5A, 0x69));
    painter.drawText(foot, Qt::AlignLeft | Qt::AlignBottom, name);
    painter.drawText(foot, Qt::AlignRight | Qt::AlignBottom, Say(Text::ReportPage).arg(number + 1).arg(pages));
  }
}

}  // namespace

std::string ReportPdf(const PanelDocument& document, const QString& name) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  {
    QPdfWriter writer(&buffer);
    writer.setResolution(Resolution);
    writer.setTitle(name);
    writer.setCreator("Plexel");
    writer.setPageLayout(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait,
                                     QMarginsF(Margin, Margin, Margin, Margin), QPageLayout::Millimeter));
    const ReportWords words = ReportWordsInForce();
    PanelPicture picture(document.ThePanel(), writer.width());
    QTextDocument text;
    text.documentLayout()->setPaintDevice(&writer);
    text.documentLayout()->registerHandler(PictureKind, &picture);
    text.setDocumentMargin(0);
    QFont font = DialogFont();
    font.setPointSizeF(8.5);
    text.setDefaultFont(font);
    QTextCursor cursor(&text);
    cursor.insertHtml("<h2>" + name.toHtmlEscaped() + "</h2><p>" + Escaped(document.ThePanel().title) + "</p>");
    QTextBlockFormat centred;
    centred.setAlignment(Qt::AlignHCenter);
    cursor.insertBlock(centred);
    QTextCharFormat format;
    format.setObjectType(PictureKind);
    cursor.insertText(QString(QChar::ObjectReplacementCharacter), format);
    cursor.insertBlock(QTextBlockFormat(), QTextCharFormat());
    cursor.insertHtml(Legend(document, words) + Table(document, words) + ProblemList(document, words));
    Print(text, writer, name);
  }
  return bytes.toStdString();
}

}  // namespace plexel
