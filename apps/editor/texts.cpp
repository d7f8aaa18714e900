#include "editor/texts.h"

#include "platform/failure.h"
#include "qt/units.h"
#include "services/shared_services.h"

namespace plexel {

QString Say(Text text) {
  const auto number = static_cast<std::int32_t>(text);
  try {
    const std::string found = GetText(number);
    if (!found.empty()) return ToQt(found);
  } catch (const Failure& failure) {
    qWarning("%s", failure.what());
  }
  return "@" + QString::number(number);
}

}  // namespace plexel
