// Files from the web, through the system's URL-to-file download service.
#pragma once

#include <cstddef>
#include <memory>
#include <string>

namespace platform {

// One download. It goes on by itself while the program handles its messages; destroying the object
// gives up what is not over, and nothing of it appears later.
class RunningDownload {
 public:
  virtual ~RunningDownload() = default;

  // Whether there is nothing more to wait for.
  virtual bool Over() const = 0;

  // Gives the whole file its name, in one step, replacing a file of that name. False when the
  // download is not over or failed, or when the name cannot be given.
  virtual bool PutInPlace() = 0;
};

class Downloader {
 public:
  virtual ~Downloader() = default;

  // Loads what downloads need, beside whatever the program does. Nothing is asked of the web.
  virtual void Prepare() = 0;

  // Begins to download what `link` has now, not an older copy, to the file `path`. More than
  // `most_bytes` are a failure, and so are any answer but success and everything that the service
  // would ask the user about. No call throws.
  virtual std::unique_ptr<RunningDownload> Begin(const std::string& link, const std::string& path,
                                                 std::size_t most_bytes) = 0;
};

}  // namespace platform
