#pragma once

#include <QString>

namespace plexel {

/// What the host says under an open form. It stands in the form's window and is no part of the form.
struct FormNote {
  QString text;        ///< rich text; empty for nothing
  bool alert = false;  ///< stands out
  bool operator==(const FormNote&) const = default;
};

}  // namespace plexel
