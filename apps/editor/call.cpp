#include "editor/call.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <array>

#include "editor/version.h"

namespace plexel {

namespace {

constexpr int WrongCall = 2;

/// Options that the toolkit's application takes, and whether a value follows.
struct ToolkitOption {
  const char* name;
  bool hasValue;
};
constexpr std::array toolkitOptions = {
    ToolkitOption{"platform", true},        ToolkitOption{"platformpluginpath", true},
    ToolkitOption{"platformtheme", true},   ToolkitOption{"plugin", true},
    ToolkitOption{"style", true},           ToolkitOption{"stylesheet", true},
    ToolkitOption{"display", true},         ToolkitOption{"geometry", true},
    ToolkitOption{"qwindowgeometry", true}, ToolkitOption{"qwindowtitle", true},
    ToolkitOption{"qwindowicon", true},     ToolkitOption{"session", true},
    ToolkitOption{"reverse", false},        ToolkitOption{"nograb", false}};

Call Wrong(const QString& reason) { return {{}, {}, WrongCall, "plexel-editor: " + reason + '\n'}; }

}  // namespace

Call Understand(int argc, char** argv) {
  const QCoreApplication words(argc, argv);  // gone before the application with windows is made
  QCommandLineParser parser;
  parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
  parser.setApplicationDescription("Configures the keys and LEDs of operator panels.");
  parser.addOption({{"h", "help"}, "Displays this help."});
  parser.addOption({{"v", "version"}, "Displays the version."});
  parser.addOption({"pdf", "Writes a report of the project to FILE, without a window.", "FILE"});
  parser.addPositionalArgument("project", "The project file to open.", "[PROJECT]");
  for (const ToolkitOption& row : toolkitOptions) {
    QCommandLineOption option(row.name);
    if (row.hasValue) option.setValueName("value");
    option.setFlags(QCommandLineOption::HiddenFromHelp);
    parser.addOption(option);
  }
  if (!parser.parse(QCoreApplication::arguments())) return Wrong(parser.errorText());
  if (parser.isSet("help")) return {{}, {}, 0, parser.helpText()};
  if (parser.isSet("version")) return {{}, {}, 0, QString("Plexel ") + ProgramVersion + '\n'};
  const QStringList projects = parser.positionalArguments();
  if (projects.size() > 1) return Wrong("one project at most");
  if (parser.isSet("pdf") && projects.isEmpty()) return Wrong("--pdf wants a project");
  if (parser.isSet("pdf") && parser.value("pdf").isEmpty()) return Wrong("--pdf wants a file");
  return {projects.value(0), parser.value("pdf"), std::nullopt, QString()};
}

}  // namespace plexel
