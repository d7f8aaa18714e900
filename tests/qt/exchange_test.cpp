#include <fstream>
#include <iterator>

#include "editor/report_pdf.h"
#include "editor/texts.h"
#include "editor_fixture.h"
#include "files/system_files.h"

namespace plexel::testing {
namespace {

class Exchange : public Editor {
 protected:
  std::string Written(const char* suffix) {
    const auto file = File(std::string("out.") + suffix);
    EXPECT_TRUE(window.Export(suffix, file)) << suffix;
    return ReadWholeFile(file, std::size_t{1} << 24U);
  }
};

TEST_F(Exchange, WhatIsExportedIsImportedAsOneStepThatCanBeTakenBack) {
  ChangeNotes("F2", "kept");
  ChangeNotes("F3", "kept too");
  const auto file = File("project.json");
  ASSERT_TRUE(window.Export("json", file));
  ChangeNotes("F2", "other");
  ChangeNotes("F3", "other");
  ASSERT_TRUE(window.Import(file));
  EXPECT_EQ(Element("F2").ButtonNotes(), "kept");
  EXPECT_EQ(Element("F3").ButtonNotes(), "kept too");
  EXPECT_EQ(window.Document()->Steps().ToUndo().name, (StepName{StepKind::Import, "", 2}));
  window.Document()->Undo();
  EXPECT_EQ(Element("F2").ButtonNotes(), "other");
}

TEST_F(Exchange, AProjectForAnotherPanelIsRefusedWithTheReason) {
  const auto file = File("other.json");
  window.NewProject("Small");
  ASSERT_TRUE(window.Export("json", file));
  window.NewProject("Large");
  QString reason;
  AnswerNextBox([&](QMessageBox& box) { reason = box.informativeText(); });
  EXPECT_FALSE(window.Import(file));
  EXPECT_TRUE(reason.contains("Small") && reason.contains("Large")) << reason.toStdString();
  EXPECT_FALSE(window.Document()->Steps().CanUndo());
}

TEST_F(Exchange, WhatIsNoProjectIsRefusedWithTheReason) {
  const auto file = File("broken.json");
  std::ofstream(file) << "{ no json";
  QString reason;
  AnswerNextBox([&](QMessageBox& box) { reason = box.informativeText(); });
  EXPECT_FALSE(window.Import(file));
  EXPECT_TRUE(reason.contains("broken.json")) << reason.toStdString();
}

TEST_F(Exchange, AReportIsWrittenInEveryForm) {
  ChangeNotes("F2", "Pumpe");
  EXPECT_NE(Written("html").find("Pumpe"), std::string::npos);
  EXPECT_NE(Written("csv").find("Pumpe"), std::string::npos);
  EXPECT_NE(Written("svg").find("<svg"), std::string::npos);
  EXPECT_TRUE(Written("pdf").starts_with("%PDF-"));
}

TEST_F(Exchange, AFileThatCannotBeWrittenIsTold) {
  QString reason;
  AnswerNextBox([&](QMessageBox& box) { reason = box.informativeText(); });
  EXPECT_FALSE(window.Export("csv", File("missing/out.csv")));
  EXPECT_TRUE(reason.contains("out.csv")) << reason.toStdString();
}

TEST_F(Exchange, TheReportHasA4PagesAndMoreOfThemForMoreLines) {
  const auto pages = [&] {
    const std::string pdf = ReportPdf(*window.Document(), "a.plexel");
    EXPECT_NE(pdf.find("/MediaBox [0 0 595"), std::string::npos) << "A4 is 595 points wide";
    int count = 0;
    for (std::size_t at = pdf.find("/Type /Page\n"); at != std::string::npos; at = pdf.find("/Type /Page\n", at + 1)) {
      ++count;
    }
    return count;
  };
  const int before = pages();
  EXPECT_GE(before, 2);
  ChangeNotes("F2", std::string(900, 'x') + std::string(90, ' '));
  for (int place = 1; place <= 20; ++place) ChangeNotes("F" + std::to_string(place), std::string(150, '\n') + "end");
  EXPECT_GT(pages(), before);
}

}  // namespace
}  // namespace plexel::testing
