#pragma once

#include <exception>
#include <string>

#include "qt/form_note.h"
#include "qt/form_subject.h"

namespace plexel {

class Form;
class FormView;
class Keyboard;

/// What the views of open forms share.
class FormDesk {
 public:
  virtual ~FormDesk() = default;
  virtual Keyboard& Keys() = 0;
  /// Makes every open form show what its model says, now and once more when the events at hand are done.
  virtual void SyncAll() = 0;
  /// The window of a form has got, or lost, the keys of the desktop.
  virtual void Activated(FormView& view) = 0;
  virtual void Deactivated(FormView& view) = 0;
  /// The window over which a form stands has gone: the form ends as by its close box, and so do those above it.
  virtual void OwnerGone(FormView& view) = 0;
  /// What the host says under the form now.
  virtual FormNote NoteOf(Form& form) = 0;
  /// What the form is about.
  virtual FormSubject SubjectOf(Form& form) = 0;
  /// Tells the user, and the log, of a failure that came out of one of his acts.
  virtual void Report(const std::string& what) = 0;
  /// Ends the form in front, whose showing then throws what came out of one of the user's acts.
  virtual void Abandon(std::exception_ptr thrown) = 0;
};

}  // namespace plexel
