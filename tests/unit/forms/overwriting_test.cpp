// A file is written where it stands, and the disk fails at any step of it, once or from then on.

#include "forms/model/overwriting.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <new>
#include <string>
#include <utility>

#include "forms/model/files.h"

namespace tavrin::tests {
namespace {

using data::Error;
using forms::DamagedFile;

constexpr int Never = 1000;

/// Keeps a file on a disk that takes half of a piece before it fails.
class FailingFile : public forms::OpenFile {
  public:
    FailingFile(std::string before, int failsAt, int worksAgainAt)
        : content(std::move(before)), failsAt_(failsAt), worksAgainAt_(worksAgainAt) {}

    std::string ReadAll() override {
        Step();
        return content;
    }
    void SetSize(std::size_t size) override {
        Step();
        content.resize(size, '?');
        shortest = std::min(shortest, size);
    }
    void Write(std::string_view text) override {
        try {
            Step();
        } catch (const std::exception&) {
            Put(text.substr(0, text.size() / 2));
            throw;
        }
        Put(text);
    }
    void Flush() override { Step(); }

    int steps = 0;
    std::string content;
    std::size_t shortest = SIZE_MAX;  ///< what it was ever cut or stretched to
    bool lacksMemory = false;

  private:
    void Step() {
        const int step = steps++;
        if (step < failsAt_ || step >= worksAgainAt_) return;
        if (lacksMemory) throw std::bad_alloc();
        throw Error(step, "The disk fails");
    }

    void Put(std::string_view text) {
        if (content.size() < text.size()) content.resize(text.size());
        content.replace(0, text.size(), text);
    }

    int failsAt_;
    int worksAgainAt_;
};

enum class Outcome { Written, Failed, Damaged };

Outcome OutcomeOf(FailingFile& file, std::string_view content) {
    try {
        forms::Overwrite(file, content);
        return Outcome::Written;
    } catch (const DamagedFile& error) {
        EXPECT_FALSE(error.Description().empty());
        return Outcome::Damaged;
    } catch (const std::exception&) {
        return Outcome::Failed;
    }
}

struct Contents {
    std::string before;
    std::string after;
};

const Contents EveryContents[] = {
    {"old", "new and longer"}, {"old and longer", "new"}, {"old", "new"}, {"", "new"}, {"old", ""}, {"", ""}};

TEST(OverwritingTest, WritesTheNewContentAndNoMore) {
    for (const auto& [before, after] : EveryContents) {
        FailingFile file(before, Never, Never);
        forms::Overwrite(file, after);
        EXPECT_EQ(file.content, after);
    }
}

TEST(OverwritingTest, AStepThatFailsOnceLeavesTheOldContent) {
    for (const auto& [before, after] : EveryContents) {
        for (const bool lacksMemory : {false, true}) {
            for (int step = 0;; ++step) {
                FailingFile file(before, step, step + 1);
                file.lacksMemory = lacksMemory;
                const Outcome outcome = OutcomeOf(file, after);
                if (outcome == Outcome::Written) break;
                EXPECT_EQ(outcome, Outcome::Failed) << step;
                EXPECT_EQ(file.content, before) << step;
            }
        }
    }
}

TEST(OverwritingTest, WhatIsToldIsTrueWhereverADiskFailsAndHowLong) {
    int damaged = 0;
    for (const auto& [before, after] : EveryContents) {
        for (int step = 0; step < 8; ++step) {
            for (int last = step + 1; last < 12; ++last) {
                FailingFile file(before, step, last);
                const Outcome outcome = OutcomeOf(file, after);
                if (outcome == Outcome::Written) {
                    EXPECT_EQ(file.content, after);
                }
                if (outcome == Outcome::Failed) {
                    EXPECT_EQ(file.content, before) << step << " to " << last;
                }
                damaged += outcome == Outcome::Damaged ? 1 : 0;
            }
        }
    }
    EXPECT_GT(damaged, 0);
}

TEST(OverwritingTest, AFileThatWasNotTouchedIsNotToldAsDamaged) {
    FailingFile file("o", 1, 3);  // takes neither more room nor half of the old content, but can be read
    EXPECT_EQ(OutcomeOf(file, "new"), Outcome::Failed);
    EXPECT_EQ(file.content, "o");
}

TEST(OverwritingTest, ADiskThatIsFullNeedsNoRoomToTakeTheOldContentBack) {
    const std::string before = "old and longer";
    for (const int step : {1, 2}) {  // writing, flushing
        FailingFile file(before, step, step + 1);
        EXPECT_EQ(OutcomeOf(file, "new"), Outcome::Failed);
        EXPECT_EQ(file.shortest, before.size());
    }
}

TEST(OverwritingTest, TheFirstFailureIsTheOneThatIsTold) {
    FailingFile file("old", 2, Never);
    try {
        forms::Overwrite(file, "new and longer");
        FAIL();
    } catch (const DamagedFile& error) {
        EXPECT_EQ(error.Number(), 2);
    }
}

}  // namespace
}  // namespace tavrin::tests
