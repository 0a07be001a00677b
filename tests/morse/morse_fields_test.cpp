// What stands in the fields when Play is pressed, whoever put it there.
#include "tests/morse/morse_fixture.h"

namespace morse {
namespace {

class MorseFieldsTest : public MorseTest {
 protected:
  void PlayAsPut(const std::string& message, const std::string& speed, const std::string& pitch) {
    sim.windows.put_by_others = {
        {"Form4.Text1", message}, {"Form4.Text2", speed}, {"Form4.Text3", pitch}};
    sim.At(1s, [this] {
      tool().Show();
      tool().Command1.Click();
    });
    StopAt(1500ms);
  }
};

TEST_F(MorseFieldsTest, WhatAnotherProgramPutThereIsPlayed) {
  PlayAsPut("e", "10", "880");
  Run();
  EXPECT_EQ(Beeps(), Lines{"beep 880 105"});
  EXPECT_EQ(tool().Text1.Text(), "e");
}

TEST_F(MorseFieldsTest, AlsoWhereTheMessageIsHidden) {
  sim.At(900ms, [this] {
    tool().Show();
    tool().Check1.Click();
  });
  PlayAsPut("t", "0", "700");
  Run();
  EXPECT_EQ(Beeps(), Lines{"beep 700 200"});
}

class DecimalSignTest : public MorseTest {
 protected:
  DecimalSignTest() { sim.environment.decimal_sign = ','; }
};

TEST_F(DecimalSignTest, IsThatOfTheUsersLocale) {
  Play("e", "0", "440,6");
  StopAt(1500ms);
  Run();
  EXPECT_EQ(Beeps(), Lines{"beep 441 100"});
}

TEST_F(DecimalSignTest, APointIsNoNumberThen) {
  Play("e", "0", "440.6");
  StopAt(1500ms);
  Run();
  EXPECT_EQ(Beeps(), Lines{});
}

TEST_F(DecimalSignTest, TheFieldsTakeThatKeyAndNotThePoint) {
  sim.At(1s, [this] {
    tool().Show();
    for (ui::TextBox* field : {&tool().Text2, &tool().Text3}) {
      field->Edit("12");
      EXPECT_TRUE(field->KeyPress(U','));
      EXPECT_FALSE(field->KeyPress(U'.'));
      field->Edit("1,2");
      EXPECT_FALSE(field->KeyPress(U','));
      EXPECT_TRUE(field->KeyPress(U'5'));
    }
  });
  Run();
}

}  // namespace
}  // namespace morse
