#include "project/text_in_force.h"

#include "services/failure_styles.h"
#include "services/shared_services.h"

namespace plexel {

std::string TextInForce(std::int32_t number, std::string_view other) {
  std::string text = EndQuietlyWith(std::string(), [number](std::string& found) { found = GetText(number); });
  return text.empty() ? std::string(other) : text;
}

}  // namespace plexel
