#include "tone/wave_output.h"

#include "base/error_trap.h"
#include "tone/wave_image.h"

namespace tone {

std::string WaveOutput::CreateWaveArray(const SampleBuffer& samples, std::int32_t sample_rate,
                                        std::int16_t bits_per_sample) {
  if (bits_per_sample != 8 && bits_per_sample != 16) platform_.processes.EndProcess();
  return WaveImage(samples, sample_rate, bits_per_sample);
}

std::optional<base::RuntimeError> WaveOutput::WriteWave(const std::string& file_name,
                                                        const std::string& image) {
  const bool there = base::Quietly([&] {
    if (!platform_.files.OpenForReading(file_name)) {
      throw base::RuntimeError(base::ErrorCode::kFileNotFound);
    }
  });
  if (there) base::Quietly([&] { platform_.files.Delete(file_name); });

  const auto failure = base::Caught([&] {
    const auto file = platform_.files.OpenForWriting(file_name);
    file->Write(image);
    file->Close();
  });
  if (failure) base::Quietly([&] { platform_.files.Delete(file_name); });
  return failure;
}

void WaveOutput::WavPlay(const std::string& path, bool loop_sound, bool kill_all) {
  base::Quietly([&] {
    if (kill_all) {
      platform_.waves.Stop(platform::kPlayNoDefault);
    } else {
      const std::uint32_t loop = loop_sound ? platform::kPlayLoop : 0;
      platform_.waves.Play(path, platform::kPlayFilename | platform::kPlayAsync | loop);
    }
  });
}

void WaveOutput::delay(std::int16_t timems) {
  base::Quietly([&] { platform_.pump.Sleep(timems); });
}

void WaveOutput::DelayUntil(platform::Moment end) {
  base::Quietly([&] { platform_.pump.SleepUntil(end); });
}

void WaveOutput::Pause(std::int16_t timems, const std::function<bool()>& stopped) {
  platform::MessagePump& pump = platform_.pump;
  const platform::Moment end = pump.Now() + std::chrono::milliseconds(timems);
  if (pump.Pass(stopped, end, platform::Grain::kCoarse)) pump.SleepUntil(end);
}

}  // namespace tone
