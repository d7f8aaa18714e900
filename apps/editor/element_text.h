#pragma once

#include <QStringList>

#include "element/ctlPlexelBaseElement.h"

namespace plexel {

/// The name of an element's kind in the user's language.
QString KindText(enumTactisBaseElementType type);
/// What the status line tells of an element: its name, kind, hardware numbers and definitions, one entry each.
QStringList ElementText(const ctlPlexelBaseElement& element);
/// The hardware numbers of an element as the properties tell them, one entry each.
QStringList NumbersText(const ctlPlexelBaseElement& element);
/// What an element is defined as, one entry a layer, or one for all where they are alike; empty when it is not defined.
QStringList DefinitionText(const ctlPlexelBaseElement& element);

/// Stands for all layers where a layer is asked for.
inline constexpr std::int32_t AllLayersShown = 0;
/// Whether an element is defined as something on a layer.
bool IsDefinedOn(const ctlPlexelBaseElement& element, std::int32_t layer);
/// What an element does on a layer, in few characters: key names without the signs of a stroke that is pressed and
/// released, and the LED function. Empty when it is not defined there.
QString LabelText(const ctlPlexelBaseElement& element, std::int32_t layer);
/// What a tool tip tells of an element, line by line: its legend and name, its kind, and its definition on each layer.
QStringList TipText(const ctlPlexelBaseElement& element, const QString& legend);

}  // namespace plexel
