#include "support/doubles.h"

#include <gtest/gtest.h>

#include "support/station_fixture.h"

namespace vorelio::tests {
namespace {

TEST(FixedClock, KeepsTheTwoTimesApart) {
  struct {
    const char *utc, *offset;
    Instant local;
  } const cases[] = {{"2003-05-12 12:34:56", "+02:00", {2003, 5, 12, 14, 34, 56}},
                     {"2003-12-31 23:30:00", "+01:00", {2004, 1, 1, 0, 30, 0}},
                     {"2004-03-01 00:10:00", "-00:30", {2004, 2, 29, 23, 40, 0}}};
  const auto fields = [](const Instant& i) { return std::tie(i.year, i.month, i.day, i.hour, i.minute, i.second); };
  for (const auto& each : cases) {
    FixedClock clock;
    ASSERT_TRUE(clock.Set(each.utc, each.offset));
    const Instant local = clock.Local();
    EXPECT_EQ(fields(local), fields(each.local)) << each.utc;
  }
  FixedClock clock;
  for (const char* wrong : {"2003-02-29 00:00:00", "2003-05-12 24:00:00", "2003-05-12", "2003-05-12 12:34:56 "})
    EXPECT_FALSE(clock.Set(wrong, "+02:00")) << wrong;
  for (const char* wrong : {"02:00", "+2", "+02:00 "}) EXPECT_FALSE(clock.Set("2003-05-12 12:34:56", wrong)) << wrong;
}

using Lines = std::vector<std::string>;

class LoggingDiskTest : public StationFixture {
 protected:
  int ErrorOf(const std::function<void()>& action) {
    try {
      action();
    } catch (const Erreur_Execution& error) {
      return error.Numero();
    }
    return 0;
  }
  std::string a = folder.File("a.txt"), b = folder.File("b.txt");
};

TEST_F(LoggingDiskTest, LogsEachAccess) {
  disk.WriteAll(a, "1");
  disk.Append(a, "2");
  disk.Copy(a, b);
  EXPECT_EQ(disk.ReadAll(b), "12");
  EXPECT_EQ(disk.Size(b), 2U);
  EXPECT_TRUE(disk.Exists(a));
  disk.Delete(a);
  EXPECT_EQ(ErrorOf([&] { disk.Delete(a); }), 53);
  EXPECT_EQ(disk.Log(), (Lines{"write a.txt", "append a.txt", "copy a.txt b.txt", "read b.txt", "size b.txt",
                               "exists a.txt", "delete a.txt", "delete a.txt"}));
  EXPECT_EQ(disk.Changes(), (Lines{"write a.txt", "append a.txt", "copy a.txt b.txt", "delete a.txt", "delete a.txt"}));
}

TEST_F(LoggingDiskTest, FailsAsOrdered) {
  disk.FailAt(2, Erreur::Permission_Refusee);
  EXPECT_EQ(ErrorOf([&] { disk.WriteAll(a, "1"); }), 0);
  EXPECT_EQ(ErrorOf([&] { disk.WriteAll(a, "2"); }), 70);
  EXPECT_EQ(ErrorOf([&] { disk.WriteAll(b, "3"); }), 0);
  EXPECT_EQ(Read("a.txt"), "1");

  disk.FailWriteAfter(2, 3, Erreur::Disque_Plein);
  EXPECT_EQ(ErrorOf([&] { disk.Append(a, "xx"); }), 0);
  EXPECT_EQ(ErrorOf([&] { disk.WriteAll(b, "abcdef"); }), 61);
  EXPECT_EQ(ErrorOf([&] { disk.Append(a, "y"); }), 0);
  EXPECT_EQ(Read("a.txt"), "1xxy");
  EXPECT_EQ(Read("b.txt"), "abc");

  disk.FailOn("copy a.txt", Erreur::Disque_Non_Pret);
  EXPECT_EQ(ErrorOf([&] { disk.Copy(a, b); }), 71);
  EXPECT_EQ(ErrorOf([&] { disk.Copy(a, b); }), 71);
  EXPECT_EQ(ErrorOf([&] { disk.Copy(b, a); }), 0);
  disk.Mend();
  EXPECT_EQ(ErrorOf([&] { disk.Copy(a, b); }), 0);
}

TEST_F(StationFixture, ReadyStationAndItsFiles) {
  ReadyStation("F9QZX_P", "JN33BB");
  EXPECT_EQ(settings.Get("Setup", "Indicatif1"), "F9QZX_P      JN33BB");
  EXPECT_EQ(settings.Get("Setup F9QZX_P", "NB Activite"), "5");
  EXPECT_EQ(Read("F9QZX_P_Locator.txt"), Read("FXXXX_Locator.txt"));
  EXPECT_TRUE(disk.Log().empty());
  WriteLines("x.txt", {"a", "b"});
  EXPECT_EQ(Line("x.txt", 1), "a");
  EXPECT_EQ(Line("x.txt", 2), "b");
  EXPECT_EQ(Line("x.txt", 3), "");
}

TEST(QueuedDialogs, EmptyQueueCancels) {
  QueuedDialogs dialogs;
  dialogs.Choose("/a.adi");
  EXPECT_EQ(dialogs.Open("/d", "ADIF|*.adi"), "/a.adi");
  EXPECT_EQ(dialogs.Save("/d", "n.adi", ""), "");
  EXPECT_EQ(dialogs.unanswered, 1);
  ASSERT_EQ(dialogs.calls.size(), 2U);
  EXPECT_TRUE(dialogs.calls[1].save);
  EXPECT_EQ(dialogs.calls[1].name, "n.adi");
}

TEST(RecordedMessages, QuestionsTakeTheOldestAnswer) {
  RecordedMessages messages;
  messages.Answer(true);
  messages.Show("m");
  EXPECT_TRUE(messages.Ask("q1", Buttons::YesNo, Icon::Question));
  EXPECT_FALSE(messages.Ask("q2", Buttons::OkCancel, Icon::Critical));
  EXPECT_EQ(messages.Unanswered(), 1);
  EXPECT_EQ(messages.TakeMessages(), Lines{"m"});
  EXPECT_EQ(messages.TakeMessages(), Lines{});
  // A question that nobody answered stays on record.
  EXPECT_EQ(messages.TakeQuestions(), (Lines{"q1", "q2"}));
  EXPECT_EQ(messages.TakeQuestions(), Lines{"q2"});
}

}  // namespace
}  // namespace vorelio::tests
