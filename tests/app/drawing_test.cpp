// What the moving pictures draw, and when they do not.
#include <cmath>

#include "tests/app/fixture.h"

namespace app {
namespace {

class DrawingTest : public ProgramTest {
 protected:
  DrawingTest() {
    sim.files.Put(kSettings,
                  "AutoUpdate=n\r\nSoundBit=128\r\nLanguage=EN\r\nSendData=n\r\n"
                  "Microphone=1\r\nMicrophoneON=y\r\n");
  }

  // A tone on the left channel and one on the right.
  void Feed(double left_hz, double right_hz) {
    sim.sound_capture.sound = [=](std::uint32_t at) {
      const double hz = at % 4 < 2 ? left_hz : right_hz;
      const auto sample =
          static_cast<std::int16_t>(8000 * std::sin(6.283185307179586 * hz * (at / 4) / 44100));
      return static_cast<std::uint8_t>(at % 2 == 0 ? sample : sample >> 8);
    };
  }

  // The journal's entries of a picture box.
  Lines Drawn(const std::string& picture) const {
    Lines entries;
    for (const std::string& text : sim.journal.Texts({Kind::kPicture})) {
      if (text == "Form1." + picture + " picture") entries.push_back(text);
    }
    return entries;
  }
};

TEST_F(DrawingTest, OfTheMicrophoneRestsWhileTheWindowIsCoveredOrMinimized) {
  Feed(503, 1508);
  At(1050ms, [this](Form1&) {
    sim.journal.Clear();
    sim.windows.out_of_sight = {"Form1"};
  });
  At(3050ms, [this](Form1&) {
    EXPECT_EQ(Drawn("picWave"), Lines{});
    EXPECT_EQ(sim.sound_capture.running_buffers, 1);
    sim.windows.out_of_sight.clear();
  });
  At(4050ms, [this](Form1&) { EXPECT_EQ(Drawn("picWave"), Lines(10, "Form1.picWave picture")); });
  Run();
}

TEST_F(DrawingTest, OnlyWhatABlockChangesIsNewInThePicture) {
  At(1050ms, [this](Form1& form1) {
    EXPECT_TRUE(form1.picWave.Changed().Empty());  // silence after silence
    Feed(500, 0);
  });
  At(1150ms, [](Form1& form1) {
    const ui::Canvas::Area changed = form1.picWave.Changed();
    EXPECT_FALSE(changed.Empty());
    EXPECT_LE(changed.top + changed.height, 44);  // the trace of the right channel is the same
  });
  Run();
}

TEST_F(DrawingTest, OfTheSineRestsWhileTheWindowIsCoveredOrMinimized) {
  std::vector<std::uint32_t> seen;
  At(1s, [](Form1& form1) { form1.Option3.Click(); });
  At(2010ms, [this, &seen](Form1&) {
    seen = main().Picture1.Picture().pixels();
    sim.windows.out_of_sight = {"Form1"};
    sim.journal.Clear();
  });
  At(12010ms, [this, &seen](Form1&) {
    EXPECT_EQ(Drawn("Picture1"), Lines{});
    EXPECT_EQ(main().Picture1.Picture().pixels(), seen);
    sim.windows.out_of_sight.clear();
  });
  At(13010ms, [this](Form1&) { EXPECT_EQ(Drawn("Picture1").size(), 20u); });
  Run();
}

}  // namespace
}  // namespace app
