// SPDX-License-Identifier: MIT
#include "Process/ImportWatcher.h"

#include <gtest/gtest.h>

#include <initializer_list>

using namespace Qt::StringLiterals;

using namespace std::chrono_literals;

namespace {

using Verdict = ImportWatcher::Verdict;

QString progress(int count)
{
    return u"Import progress: %1 assets still to import"_s.arg(count);
}

const auto allImported = [] { return u"All assets imported, closing the setup run."_s; };
const auto tooLong = [] { return u"Setup took too long, stopping it."_s; };

/// What a watcher of production's durations logs for these counts, one every two seconds, and how
/// many of them it took to end the run; none when it did not.
struct Watch
{
    explicit Watch(std::initializer_list<int> counts)
    {
        ImportWatcher watcher(4s, 900s);
        std::chrono::milliseconds elapsed = 0s;
        for (const auto count : counts) {
            elapsed += 2s;
            const auto step = watcher.next(count, elapsed);
            log += step.log;
            ++polls;
            if (step.verdict == Verdict::end) {
                hasEnded = true;
                break;
            }
        }
    }

    QStringList log;
    int polls = 0;
    bool hasEnded = false;
};

TEST(ImportWatcher, logsTheFirstCountAndThenChangesOnly)
{
    const Watch watch({120, 120, 87});
    EXPECT_EQ(watch.log, (QStringList{progress(120), progress(87)}));
    EXPECT_FALSE(watch.hasEnded);
}

TEST(ImportWatcher, logsAFirstCountOfZero)
{
    EXPECT_EQ(Watch({0}).log, QStringList{progress(0)});
}

TEST(ImportWatcher, endsARunWithNothingMissingForFourSeconds)
{
    const Watch watch({3, 0, 0, 0, 0, 0});
    EXPECT_EQ(watch.log, (QStringList{progress(3), progress(0), allImported()}));
    EXPECT_TRUE(watch.hasEnded);
    EXPECT_EQ(watch.polls, 4);
}

TEST(ImportWatcher, beginsAgainWhenSomethingIsMissingAgain)
{
    const Watch watch({0, 5, 0, 0, 0});
    EXPECT_EQ(watch.log, (QStringList{progress(0), progress(5), progress(0), allImported()}));
    EXPECT_TRUE(watch.hasEnded);
    EXPECT_EQ(watch.polls, 5);
}

TEST(ImportWatcher, needsTheWholeTimeBetweenTheFirstAndTheLastZero)
{
    ImportWatcher watcher(4s, 900s);
    EXPECT_EQ(watcher.next(0, 2000ms).verdict, Verdict::goOn);
    EXPECT_EQ(watcher.next(0, 5999ms).verdict, Verdict::goOn);
    EXPECT_EQ(watcher.next(0, 6000ms).verdict, Verdict::end);
}

TEST(ImportWatcher, givesUpAtTheFirstLookAfterTheLimit)
{
    ImportWatcher watcher(4s, 900s);
    EXPECT_EQ(watcher.next(7, 898s).verdict, Verdict::goOn);
    EXPECT_EQ(watcher.next(7, 900s).verdict, Verdict::goOn);
    const auto step = watcher.next(7, 902s);
    EXPECT_EQ(step.verdict, Verdict::end);
    EXPECT_EQ(step.log, QStringList{tooLong()});
}

TEST(ImportWatcher, logsTheLastCountBeforeItGivesUp)
{
    ImportWatcher watcher(4s, 900s);
    EXPECT_EQ(watcher.next(6, 901s).log, (QStringList{progress(6), tooLong()}));
}

TEST(ImportWatcher, givesUpThoughNothingHasBeenMissingForAWhile)
{
    ImportWatcher watcher(4s, 900s);
    EXPECT_EQ(watcher.next(0, 901s).log, (QStringList{progress(0), tooLong()}));
}

TEST(ImportWatcher, callsARunDoneThatIsDoneAfterTheLimit)
{
    ImportWatcher watcher(4s, 900s);
    watcher.next(0, 897s);
    EXPECT_EQ(watcher.next(0, 901s).log, QStringList{allImported()});
}

} // namespace
