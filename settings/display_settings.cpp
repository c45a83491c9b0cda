#include "settings/display_settings.h"

namespace orbisol {

DisplaySettings& Display() {
  static DisplaySettings settings;
  return settings;
}

}  // namespace orbisol
