#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "job/context.h"
#include "report/document.h"
#include "ui/desktop.h"

namespace route {

/// Lets the operator make a picture with the picture-paste tool and files it with the job.
///
/// Starts the tool at `tool` (path text), waits until it has ended while the window stays alive, puts the
/// tool's picture to "bmp_data\<file>" in the job's folder, made where it is missing, in the place of a
/// picture of that name, and deletes the tool's. The picture is "map_app\temp.bmp" in the data folder; where
/// the tool stands in another folder and has left "temp.bmp" beside itself since it was started, that one.
/// The picture filed before stays as it is until the new one is complete.
///
/// Where the tool is not installed the operator is told so, and filing goes on as if the tool had just ended.
/// `file`: name of the filed picture with its extension. Returns false always; nobody asks. Errors are
/// reported under "FcPicturePaste", and nothing is lost by them: a name that no file can have (before the
/// tool is started), a tool that does not start, no picture left by the tool or one that is cut short, a
/// folder that cannot be made, a picture that cannot be written.
bool FcPicturePaste(ui::Desktop& desktop, const job::JobContext& context, std::string_view tool,
                    std::string_view file);

/// The picture that is filed under a name, on a page of its own; nothing where there is none.
std::optional<report::Figure> filedPicture(const job::JobContext& context, const std::string& file);

/// Files a picture of the program's own, a whole bitmap file, where FcPicturePaste files those of the tool,
/// all or nothing, and tells the operator where it is. With safeguards the operator is asked before a picture
/// of that name is replaced. Errors are reported under "図を登録".
void filePicture(ui::Desktop& desktop, const job::JobContext& context, const std::string& picture,
                 std::string_view file);

}  // namespace route
