#pragma once

#include <QStringList>

#include "element/ctlPlexelBaseElement.h"

namespace plexel {

/// The name of an element's kind in the user's language.
QString KindText(enumTactisBaseElementType type);
/// What the status line tells of an element: its name, kind, hardware numbers and definitions, one entry each.
QStringList ElementText(const ctlPlexelBaseElement& element);
/// What an element is defined as, one entry a layer, or one for all where they are alike; empty when it is not defined.
QStringList DefinitionText(const ctlPlexelBaseElement& element);

}  // namespace plexel
