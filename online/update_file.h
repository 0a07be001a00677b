// The update file: the newest version as a bare number in line 1, the download link in line 2.
//
// It comes from the web, so whatever it holds is expected. Texts are bytes of the system's code
// page; a line ends with CR LF, CR or LF.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace online {

struct UpdateFile {
  std::string version;  // line 1
  std::string link;     // line 2
};

// Nothing for a file of nine or more lines.
std::optional<UpdateFile> ParseUpdateFile(std::string_view content);

// Whether the number that `version` begins with (0 when there is none) is greater than this
// program's (base::kVersionNumber).
bool IsNewer(std::string_view version);

// The first three characters of `version` with points between them: "237" gives "2.3.7". Those of
// a newer version are ASCII.
std::string DottedVersion(std::string_view version);

}  // namespace online
