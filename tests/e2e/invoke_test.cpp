// Late-bound calls with every type, shape and order of arguments, most of them wrong: each is done or refused
// as it should be, and none leaves anything behind. What reads a call's arguments works on the platform's own
// types, so it is tried here and not by a fuzzer.

#include <algorithm>
#include <array>
#include <optional>
#include <string>
#include <vector>

#include "e2e/driver/late_call.h"
#include "e2e/driver/resource_count.h"
#include "e2e/host_test.h"
#include "win32/base/variant.h"

namespace tavrin::e2e {
namespace {

constexpr unsigned Parameters = 4;
constexpr DISPID ApelMember = 1;

/// How a value is handed over. The last two lead nowhere.
enum class Shape { Plain, Reference, InVariant, ReferenceInVariant, NullReference, NullInVariant };
constexpr std::array<Shape, 6> Shapes = {Shape::Plain,         Shape::Reference,
                                         Shape::InVariant,     Shape::ReferenceInVariant,
                                         Shape::NullReference, Shape::NullInVariant};

VARIANT Whole(VARTYPE type, LONGLONG number) {
    VARIANT value{};
    value.vt = type;
    value.llVal = number;
    return value;
}

VARIANT Float(VARTYPE type, double number) {
    VARIANT value{};
    value.vt = type;
    value.dblVal = number;
    if (type == VT_R4) value.fltVal = static_cast<float>(number);
    return value;
}

VARIANT Object(VARTYPE type, IDispatch* object) {
    VARIANT value{};
    value.vt = type;
    value.pdispVal = object;
    return value;
}

bool MayBeReferredTo(const VARIANT& value) {
    return value.vt != VT_EMPTY && value.vt != VT_NULL && value.vt != VT_CLSID && (value.vt & VT_ARRAY) == 0;
}

VARIANT TypedReference(VARTYPE type, void* target) {
    VARIANT reference{};
    reference.vt = static_cast<VARTYPE>(VT_BYREF | type);
    reference.byref = target;
    return reference;
}

/// A value in the shape in which it is passed. Refers to itself, so it stays where it was made.
class Argument {
  public:
    Argument(const VARIANT& value, Shape shape) : value_(value) {
        void* const content = value.vt == VT_DECIMAL ? static_cast<void*>(&value_.decVal) : &value_.llVal;
        const bool isNull = shape == Shape::NullReference || shape == Shape::NullInVariant;
        inner_ = TypedReference(value.vt, isNull ? nullptr : content);
        const bool isDirect = shape == Shape::Reference || shape == Shape::NullReference;
        if (shape == Shape::Plain) {
            passed_ = value_;
        } else if (isDirect) {
            passed_ = inner_;
        } else {
            passed_ = TypedReference(VT_VARIANT, shape == Shape::InVariant ? &value_ : &inner_);
        }
    }
    Argument(const Argument&) = delete;
    Argument& operator=(const Argument&) = delete;

    const VARIANT& Passed() const { return passed_; }

  private:
    VARIANT value_;
    VARIANT inner_{};
    VARIANT passed_{};
};

/// What a parameter makes of a value: what the platform's own conversion answers.
HRESULT Expected(unsigned parameter, const VARIANT& value, Shape shape, LCID locale) {
    constexpr std::array<VARTYPE, Parameters> types = {VT_DISPATCH, VT_DATE, VT_I2, VT_I4};
    if (shape == Shape::NullReference || shape == Shape::NullInVariant) return DISP_E_TYPEMISMATCH;
    if (value.vt == VT_CLSID) return DISP_E_TYPEMISMATCH;
    if (value.vt == VT_ERROR && value.scode == DISP_E_PARAMNOTFOUND) return DISP_E_PARAMNOTOPTIONAL;
    if (parameter == 0) return value.vt == VT_DISPATCH || value.vt == VT_UNKNOWN ? S_OK : DISP_E_TYPEMISMATCH;
    VARIANT source = value;
    VARIANT changed{};
    const HRESULT result = VariantChangeTypeEx(&changed, &source, locale, 0, types[parameter]);
    VariantClear(&changed);
    return result;
}

class InvokeTest : public HostTest {
  protected:
    struct Answer {
        HRESULT result = S_OK;
        std::optional<UINT> place{};  ///< of the argument that the answer is about, where it is about one
    };
    /// All that Invoke is told besides the arguments.
    struct Target {
        DISPID member = ApelMember;
        WORD kind = DISPATCH_METHOD;
        LCID locale = LOCALE_USER_DEFAULT;
        IID interfaceId = IID_NULL;
    };

    /// Arguments of a call that is done, by their parameters.
    std::array<VARIANT, Parameters> GoodArguments() {
        return {ObjectArgument(&host->Data().Connection()), DateArgument(OleDay({})), ShortArgument(2003),
                LongArgument(2)};
    }

    /// Calls twice: with somewhere to put each answer, and with nothing but the result.
    void ExpectAnswer(const Answer& expected, DISPPARAMS* call, const std::string& what,
                      const Target& target) {
        VARIANT result = LongArgument(7);  // whatever the caller left there
        EXCEPINFO exception{};
        UINT place = 99;  // of no argument
        _Utile& object = *host->Object();
        EXPECT_EQ(object.Invoke(target.member, target.interfaceId, target.locale, target.kind, call, &result,
                                &exception, &place),
                  expected.result)
            << what;
        if (expected.place) {
            EXPECT_EQ(place, *expected.place) << what;
        }
        EXPECT_EQ(result.vt, VT_EMPTY) << what;
        EXPECT_EQ(exception.bstrDescription, nullptr) << what;
        EXPECT_EQ(object.Invoke(target.member, target.interfaceId, target.locale, target.kind, call, nullptr,
                                nullptr, nullptr),
                  expected.result)
            << what;
    }
    void ExpectAnswer(const Answer& expected, DISPPARAMS* call, const std::string& what) {
        ExpectAnswer(expected, call, what, Target());
    }

    /// Every parameter gets the value in every shape, while the others get what they should.
    void PassEverywhere(const VARIANT& value, LCID locale) {
        for (unsigned parameter = 0; parameter < Parameters; ++parameter) {
            for (const Shape shape : Shapes) {
                if (!MayBeReferredTo(value) && shape != Shape::Plain && shape != Shape::InVariant) continue;
                const Argument argument(value, shape);
                std::array<VARIANT, Parameters> arguments = GoodArguments();
                arguments[parameter] = argument.Passed();
                std::ranges::reverse(arguments);
                DISPPARAMS call{arguments.data(), nullptr, Parameters, 0};
                const HRESULT expected = Expected(parameter, value, shape, locale);
                Answer answer{expected};
                if (FAILED(expected)) answer.place = Parameters - 1 - parameter;
                ExpectAnswer(answer, &call,
                             "type " + std::to_string(value.vt) + ", shape " +
                                 std::to_string(static_cast<int>(shape)) + ", parameter " +
                                 std::to_string(parameter),
                             {.locale = locale});
            }
        }
    }

    /// Every value in the user's locale; texts in others as well, which separate numbers and dates otherwise.
    void PassEverything() {
        for (const VARIANT& value : Values())
            host->Call([&] { PassEverywhere(value, LOCALE_USER_DEFAULT); });
        for (const win32::Bstr& text : texts) {
            for (const LCID locale : {0x0409U, 0x0418U, 0x0407U, 0U})
                host->Call([&] { PassEverywhere(TextArgument(text.Get()), locale); });
        }
    }

    std::vector<VARIANT> Values() {
        std::vector<VARIANT> values = {Whole(VT_EMPTY, 0), NullArgument(),
                                       MissingArgument(),  Whole(VT_ERROR, E_FAIL),
                                       Whole(VT_CLSID, 0), Whole(VT_I4 | VT_ARRAY, 0)};
        for (const VARTYPE type : {VT_I1, VT_I2, VT_I4, VT_I8, VT_INT, VT_UI1, VT_UI2, VT_UI4, VT_UI8,
                                   VT_UINT, VT_BOOL, VT_CY, VT_DECIMAL}) {
            for (const LONGLONG number : {0LL, 1LL, -1LL, 32767LL, 32768LL, 3'000'000'000LL, 377'885'000LL})
                values.push_back(Whole(type, number));
        }
        for (const VARTYPE type : {VT_R4, VT_R8, VT_DATE}) {
            for (const double number :
                 {0.0, 37788.5, -1e9, 1e300, -657434.0, 2958466.0, 3e9, 0.5, -0.125, 32767.5})
                values.push_back(Float(type, number));
        }
        const std::array<IDispatch*, 3> objects = {nullptr, &host->Data().Connection(), stranger.Get()};
        for (const VARTYPE type : {VT_DISPATCH, VT_UNKNOWN}) {
            for (IDispatch* const object : objects)
                values.push_back(Object(type, object));
        }
        for (const win32::Bstr& text : texts)
            values.push_back(TextArgument(text.Get()));
        return values;
    }

    /// A call whose last parameters are named in this order. Each parameter in its turn gets what it cannot
    /// take, which the answer places: one read from another's place would show.
    void ExpectOrder(const std::vector<DISPID>& names) {
        std::vector<DISPID> order = names;
        for (auto parameter = static_cast<DISPID>(Parameters - names.size()); parameter-- > 0;)
            order.push_back(parameter);
        for (unsigned wrong = 0; wrong <= Parameters; ++wrong) {
            std::array<VARIANT, Parameters> good = GoodArguments();
            if (wrong < Parameters) good[wrong] = NullArgument();
            std::array<VARIANT, Parameters> arguments{};
            std::ranges::transform(order, arguments.begin(), [&](DISPID parameter) {
                return good[static_cast<std::size_t>(parameter)];
            });
            std::vector<DISPID> given = names;
            DISPPARAMS call{arguments.data(), given.data(), Parameters, static_cast<UINT>(given.size())};
            const auto place = std::ranges::find(order, static_cast<DISPID>(wrong)) - order.begin();
            const Answer done{};
            ExpectAnswer(wrong == Parameters ? done : Answer{DISP_E_TYPEMISMATCH, static_cast<UINT>(place)},
                         &call, std::to_string(names.size()) + " named, " + std::to_string(wrong) + " wrong");
        }
    }

    const win32::ComPtr<EventSink> stranger =
        host->Call([] { return win32::MakeObject<EventSink>(); });  ///< an object that is no connection
    const std::array<win32::Bstr, 9> texts = {
        win32::Bstr(L""),    win32::Bstr(L"16/06/2003"), win32::Bstr(L"2003"),
        win32::Bstr(L"abc"), win32::Bstr(L"2003-06-16"), win32::Bstr(L"-99999999999"),
        win32::Bstr(L"1,5"), win32::Bstr(L" 7 "),        win32::Bstr(std::wstring(70000, L'9'))};
};

// A conversion that is missing or another than the platform's, an indirection that is not followed or
// followed into nothing, the wrong place; and, over all of them, a text or a reference that is lost.
TEST_F(InvokeTest, EveryTypeInEveryShapeIsTakenAsThePlatformTakesIt) {
    PassEverything();
    ASSERT_EQ(host->Apel(), S_OK);
    const int references = host->ReferencesToConnection();
    const std::size_t heapBefore = HeapBytes();
    PassEverything();

    EXPECT_EQ(host->Apel(), S_OK);
    EXPECT_TRUE(AwaitFocus("cmdAction(2)"));
    EXPECT_EQ(OpenForms().size(), 1U);
    EXPECT_EQ(host->ReferencesToConnection(), references);
    host->ApelWith(nullptr);
    EXPECT_EQ(host->Call([&] { return stranger->AddRef(), stranger->Release(); }), 1U);
    // Texts of 140 KB were among the arguments: one of them lost would show.
    constexpr std::size_t Tolerance = 64 * std::size_t{1024};
    EXPECT_LE(HeapBytes(), heapBefore + Tolerance);
}

// A named argument that is read from another's place, or an unnamed one that is counted wrongly behind them.
TEST_F(InvokeTest, NamedArgumentsComeInAnyOrder) {
    host->Call([&] {
        for (DISPID first = 0; first <= static_cast<DISPID>(Parameters); ++first) {
            std::vector<DISPID> names;
            for (DISPID name = first; name < static_cast<DISPID>(Parameters); ++name)
                names.push_back(name);
            do {
                ExpectOrder(names);
            } while (std::ranges::next_permutation(names).found);
        }
    });
}

// Names that are read beyond their array, a parameter that stays empty, a place beyond the arguments.
TEST_F(InvokeTest, WrongNamesAndCountsAreRefused) {
    struct Case {
        const char* what;
        std::vector<DISPID> names;
        Answer answer;
        UINT count = Parameters;
    };
    const std::array<Case, 10> cases = {{
        {"a name beyond the last", {4}, {DISP_E_PARAMNOTFOUND, 0}},
        {"the name of a value to put", {DISPID_PROPERTYPUT}, {DISP_E_PARAMNOTFOUND, 0}},
        {"the largest name", {3, 0x7FFFFFFF}, {DISP_E_PARAMNOTFOUND, 1}},
        {"a name twice", {3, 3}, {DISP_E_PARAMNOTOPTIONAL, 1}},
        {"the name of one that stands unnamed", {0}, {DISP_E_PARAMNOTOPTIONAL, 3}},
        {"more names than arguments", {3, 2, 1, 0, 3}, {DISP_E_BADPARAMCOUNT}},
        {"no argument", {}, {DISP_E_BADPARAMCOUNT}, 0},
        {"an argument too few", {}, {DISP_E_BADPARAMCOUNT}, 3},
        {"an argument too many", {}, {DISP_E_BADPARAMCOUNT}, 5},
        {"a name among too few", {3}, {DISP_E_BADPARAMCOUNT}, 2},
    }};
    host->Call([&] {
        for (const Case& each : cases) {
            std::array<VARIANT, 5> arguments{};
            std::ranges::copy(GoodArguments(), arguments.rbegin() + 1);
            std::vector<DISPID> names = each.names;
            DISPPARAMS call{arguments.data(), names.data(), each.count, static_cast<UINT>(names.size())};
            ExpectAnswer(each.answer, &call, each.what);
        }
        std::array<VARIANT, Parameters> arguments = GoodArguments();
        DISPPARAMS call{arguments.data(), nullptr, Parameters, 1};
        ExpectAnswer({E_POINTER}, &call, "names that are nowhere");
        call = {nullptr, nullptr, Parameters, 0};
        ExpectAnswer({E_POINTER}, &call, "arguments that are nowhere");
    });
}

// A call of something else that is taken for one of Apel.
TEST_F(InvokeTest, OnlyACallOfApelIsOne) {
    struct Case {
        Target target;
        HRESULT result;
    };
    const std::vector<Case> cases = {
        {{.kind = DISPATCH_METHOD | DISPATCH_PROPERTYGET}, S_OK},
        {{.kind = 0}, DISP_E_MEMBERNOTFOUND},
        {{.kind = DISPATCH_PROPERTYGET}, DISP_E_MEMBERNOTFOUND},
        {{.kind = DISPATCH_PROPERTYPUT}, DISP_E_MEMBERNOTFOUND},
        {{.kind = DISPATCH_PROPERTYPUTREF}, DISP_E_MEMBERNOTFOUND},
        {{.kind = 0x8000}, DISP_E_MEMBERNOTFOUND},
        {{.member = DISPID_VALUE}, DISP_E_MEMBERNOTFOUND},
        {{.member = 2}, DISP_E_MEMBERNOTFOUND},
        {{.member = DISPID_NEWENUM}, DISP_E_MEMBERNOTFOUND},
        {{.interfaceId = IID_IDispatch}, DISP_E_UNKNOWNINTERFACE},
    };
    host->Call([&] {
        for (const Case& each : cases) {
            std::array<VARIANT, Parameters> arguments = GoodArguments();
            std::ranges::reverse(arguments);
            DISPPARAMS call{arguments.data(), nullptr, Parameters, 0};
            ExpectAnswer(
                {each.result}, &call,
                "member " + std::to_string(each.target.member) + ", kind " + std::to_string(each.target.kind),
                each.target);
        }
        ExpectAnswer({E_POINTER}, nullptr, "no arguments at all");
    });
}

}  // namespace
}  // namespace tavrin::e2e
