#include "cli/script_host.h"

#include "cli/values_json.h"
#include "element/ctlPlexelBaseElement.h"

namespace plexel {

void ScriptHost::PropertyChanged(ctlPlexelBaseElement& element, const Notice& notice) {
  if (!traceNotices_) return;
  Json report;
  report["notice"] = notice.kind == Notice::Kind::Text ? Json(std::string(notice.text)) : Json(notice.integer);
  report["element"] = element.Name();
  reporter_.Report(report);
}

void ScriptHost::Happened(HostEvent event) {
  Json arguments = Json::array();
  for (const HostEvent::Value& argument : event.arguments) arguments.push_back(ToJson(argument));
  Json report;
  report["event"] = event.name;
  report["element"] = event.element;
  report["args"] = std::move(arguments);
  reporter_.Report(report);
}

}  // namespace plexel
