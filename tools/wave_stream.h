// A tone program as a WAV file, piece by piece, in constant memory: the header of the program's own
// WAV images (tone/wave_image.h) and the samples of program_files::ToneRenderer.
#pragma once

#include "program_files/tone_renderer.h"
#include "tools/surroundings.h"

namespace tools {

// Throws Failure when the file would be larger than 4 GiB, before anything is written. A stream (a
// pipe) has no such limit: the sizes in its header are then the largest that can be said, which
// other programs take for "until the end". Throws Failure for a terminal, too.
void WriteWave(program_files::ToneRenderer& renderer, Destination& destination);

}  // namespace tools
