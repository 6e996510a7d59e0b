// The code pages of the embedded database against those of the system.

#include <windows.h>

#include <gmock/gmock.h>

#include <string>

#include "host/embedded/code_page.h"
#include "win32/base/text.h"

namespace tavrin::e2e {
namespace {

std::string ThroughTheSystem(wchar_t letter, host::CodePage page) {
    const auto number = static_cast<UINT>(page);
    char byte[2];
    const int length = WideCharToMultiByte(number, 0, &letter, 1, byte, 2, nullptr, nullptr);
    wchar_t back = 0;
    MultiByteToWideChar(number, 0, byte, length, &back, 1);
    return win32::ToUtf8(std::wstring(1, back));
}

void ExpectTheSystemsOpinion(host::CodePage page, wchar_t except) {
    // All letters of Latin-1 and Latin Extended-A, and those with a comma below.
    for (wchar_t letter = 0xC0; letter <= 0x21B; letter = letter == 0x17F ? 0x218 : letter + 1) {
        if (letter == except) continue;
        EXPECT_EQ(host::ThroughCodePage(win32::ToUtf8(std::wstring(1, letter)), page),
                  ThroughTheSystem(letter, page))
            << "U+" << std::hex << static_cast<unsigned>(letter);
    }
}

TEST(CodePages, KeepTheLettersThatTheSystemKeeps) {
    ExpectTheSystemsOpinion(host::CodePage::CentralEuropean, 0);
    const wchar_t capitalDWithStroke = 0x110;  // fitted to another letter of the page
    ExpectTheSystemsOpinion(host::CodePage::Western, capitalDWithStroke);
}

}  // namespace
}  // namespace tavrin::e2e
