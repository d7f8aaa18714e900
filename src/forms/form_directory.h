#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "forms/form.h"
#include "forms/form_name.h"

namespace plexel {

/// The forms by name, one instance each. The program that puts everything together fills it with makers; the element
/// and the dialogs ask it to show one. Each showing makes the form anew, so that it starts from its design state, and
/// lets it go when it has closed.
class FormDirectory {
 public:
  using Maker = std::function<std::unique_ptr<Form>()>;
  void Add(FormName name, Maker maker);
  /// Shows the form of this name modal and returns when it has closed. Failure (NoSuchMember) for an unknown name,
  /// Failure (InvalidCall) when the form is shown already.
  void ShowModal(FormName name, Window* owner);
  /// Takes all makers away. The forms that are open stay so; it gives them.
  std::vector<Form*> Clear();
  /// The instance that is open, or null.
  Form* Open(FormName name) const;

  static FormDirectory& Instance();

 private:
  struct Entry {
    Maker maker;
    std::unique_ptr<Form> open;
  };
  std::map<std::string, Entry, std::less<>> entries_;
};

}  // namespace plexel
