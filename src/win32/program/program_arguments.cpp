#include "win32/program/program_arguments.h"

#include <windows.h>

#include <shellapi.h>

#include <memory>

#include "win32/base/text.h"

namespace tavrin::win32 {

std::vector<std::string> Arguments() {
    int count = 0;
    const std::unique_ptr<LPWSTR, decltype(&LocalFree)> texts(CommandLineToArgvW(GetCommandLineW(), &count),
                                                              LocalFree);
    std::vector<std::string> arguments;
    for (int i = 1; i < count; ++i)
        arguments.push_back(ToUtf8(texts.get()[i]));
    return arguments;
}

}  // namespace tavrin::win32
