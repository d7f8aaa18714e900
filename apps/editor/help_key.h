#pragma once

#include <QWidget>
#include <cstdint>

class QDialog;

namespace plexel {

/// The topics of the help that are the editor's own.
namespace help_topics {
inline constexpr std::int32_t Steps = 3001, Versions = 3002, Problems = 3003, Trial = 3004, VirtualPanel = 3005,
                              Copying = 3006, Overview = 3007, Exchange = 3008, Inspector = 3009;
}  // namespace help_topics

/// What F1 opens while the keyboard is in a widget or in what lies in it.
void SetHelpTopic(QWidget& widget, std::int32_t topic);
/// The topic of the nearest widget round this one that has one; the table of contents for none.
std::int32_t HelpTopicOf(const QWidget* widget);
/// Lets F1 open a topic in a dialog.
void AddHelpKey(QDialog& dialog, std::int32_t topic);

}  // namespace plexel
