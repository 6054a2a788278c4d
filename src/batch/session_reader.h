#pragma once

#include <string_view>

#include "batch/session_script.h"
#include "console/form1.h"

namespace zerimo::batch {

/// Reads a whole session: UTF-8, one action a line, line ends LF or CRLF, a byte order mark at the start allowed.
/// Controls and timers are looked up in `form1`. Fails with `SessionError` at the first line that is wrong.
Script ReadSession(std::string_view utf8, Form1& form1);

}  // namespace zerimo::batch
