#pragma once

#include "cli/reporter.h"
#include "headless/event_host.h"

namespace plexel {

/// The host of a script's elements: reports what it hears. Notices only while they are traced.
class ScriptHost : public EventHost {
 public:
  ScriptHost(Faults& faults, Reporter& reporter) : EventHost(faults), reporter_(reporter) {}
  void PropertyChanged(ctlPlexelBaseElement& element, const Notice& notice) override;
  void TraceNotices(bool on) { traceNotices_ = on; }

 protected:
  void Happened(HostEvent event) override;

 private:
  Reporter& reporter_;
  bool traceNotices_ = false;
};

}  // namespace plexel
