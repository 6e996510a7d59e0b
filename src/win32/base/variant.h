#pragma once

#include <windows.h>

#include <oleauto.h>

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "win32/base/com_ptr.h"

namespace tavrin::win32 {

/// Owns a BSTR.
class Bstr {
  public:
    Bstr() = default;
    explicit Bstr(std::wstring_view text);
    explicit Bstr(std::string_view utf8);

    BSTR Get() const { return text_.get(); }
    /// Passes the text on to one that frees it.
    BSTR Detach() { return text_.release(); }
    std::wstring_view View() const { return {text_.get(), SysStringLen(text_.get())}; }

    /// Takes over a text that the caller owns.
    static Bstr Attach(BSTR text);

  private:
    struct Free {
        void operator()(BSTR text) const { SysFreeString(text); }
    };
    std::unique_ptr<OLECHAR, Free> text_;
};

/// Owns a VARIANT and whatever it refers to. Copies are made only where Copy is written.
class Variant {
  public:
    Variant() { VariantInit(&content_); }
    explicit Variant(std::int16_t number);
    explicit Variant(std::int32_t number);
    explicit Variant(double number);
    explicit Variant(std::string_view utf8);
    explicit Variant(const ComPtr<IDispatch>& object);
    ~Variant() { VariantClear(&content_); }
    Variant(Variant&& other) noexcept;
    Variant& operator=(Variant&& other) noexcept;
    Variant(const Variant&) = delete;
    Variant& operator=(const Variant&) = delete;

    static Variant Boolean(bool value);
    static Variant Date(double days);
    static Variant Null();
    /// An argument that is left out.
    static Variant Missing();
    /// A copy without indirection: by-reference contents are followed. \throws data::Error
    static Variant Copy(const VARIANT& source);
    /// Refers to another variant, which must outlive it and takes what the called method gives back.
    static Variant Reference(Variant& target);

    const VARIANT& Get() const { return content_; }
    VARTYPE Type() const { return content_.vt; }
    bool IsMissing() const { return Type() == VT_ERROR && content_.scode == DISP_E_PARAMNOTFOUND; }
    bool IsNull() const { return Type() == VT_NULL; }

    /// For calls that give a variant back: empties it first.
    VARIANT* Receive();
    VARIANT Detach();

    /// The same value in another type. \throws data::Error 13 (type mismatch) or 6 (overflow)
    Variant ChangedTo(VARTYPE type, LCID locale = LOCALE_USER_DEFAULT) const;

    std::int32_t ToLong() const;
    bool ToBoolean() const;
    std::string ToText() const;
    /// The object inside. Null for Nothing, and for all that is no object.
    ComPtr<IDispatch> ToObject() const;

  private:
    VARIANT content_;
};

}  // namespace tavrin::win32
