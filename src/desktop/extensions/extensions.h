#pragma once

#include <filesystem>

#include "desktop/session.h"

namespace zerimo {

/// Puts everything that goes beyond the classic system beside a session; see docs/extensions.md. `folder` is where the
/// user's texts are kept; it is created when needed.
void AddExtensions(Session& session, const std::filesystem::path& folder);

}  // namespace zerimo
