#pragma once

#include <windows.h>

namespace plexel {

/// The present look of the system's controls, which a host need not have chosen for itself: windows that are made while
/// a Scope lives have it. A module without the manifest has the look of its host.
class VisualStyles {
 public:
  VisualStyles();
  ~VisualStyles();
  VisualStyles(const VisualStyles&) = delete;
  VisualStyles& operator=(const VisualStyles&) = delete;

  class Scope {
   public:
    explicit Scope(const VisualStyles& styles);
    ~Scope();
    Scope(const Scope&) = delete;
    Scope& operator=(const Scope&) = delete;

   private:
    ULONG_PTR cookie_ = 0;
    bool active_ = false;
  };

 private:
  HANDLE context_;
};

}  // namespace plexel
