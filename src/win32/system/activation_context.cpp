#include "win32/system/activation_context.h"

#include <string>

#include "win32/base/module_path.h"

namespace tavrin::win32 {

namespace {

/// The number of the manifest that concerns a DLL's own code.
constexpr int ManifestResource = 2;

HANDLE Create(HINSTANCE module) {
    const std::wstring path = ModulePath(module);
    ACTCTXW settings{};
    settings.cbSize = sizeof settings;
    settings.dwFlags = ACTCTX_FLAG_HMODULE_VALID | ACTCTX_FLAG_RESOURCE_NAME_VALID;
    settings.lpSource = path.c_str();
    settings.lpResourceName = MAKEINTRESOURCEW(ManifestResource);
    settings.hModule = module;
    return CreateActCtxW(&settings);
}

}  // namespace

ActivationContext::ActivationContext(HINSTANCE module) : context_(Create(module)) {}

ActivationContext::~ActivationContext() {
    if (context_ != INVALID_HANDLE_VALUE) ReleaseActCtx(context_);
}

ActivationContext::Scope::Scope(const ActivationContext& context)
    : active_(context.context_ != INVALID_HANDLE_VALUE &&
              ActivateActCtx(context.context_, &cookie_) != FALSE) {}

ActivationContext::Scope::~Scope() {
    if (active_) DeactivateActCtx(0, cookie_);
}

}  // namespace tavrin::win32
