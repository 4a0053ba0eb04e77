#pragma once

#include <string_view>

#include "job/context.h"
#include "ui/desktop.h"

namespace route {

/// Lets the operator make a picture with the picture-paste tool and files it with the job.
///
/// Starts the tool at `tool` (path text), waits until it has ended while the window stays alive, copies the
/// tool's picture, "map_app\temp.bmp" in the data folder, to "bmp_data\<file>" in the job's folder, made
/// where it is missing, over a picture of that name, and deletes the tool's. Where the tool is not installed
/// the operator is told so, and filing goes on as if the tool had just ended. `file`: name of the filed
/// picture with its extension. Returns false always; nobody asks. Errors are reported under "FcPicturePaste":
/// no picture left by the tool, a folder that cannot be made, a tool that does not start.
bool FcPicturePaste(ui::Desktop& desktop, const job::JobContext& context, std::string_view tool,
                    std::string_view file);

}  // namespace route
