// Apel as every kind of host calls it, and what it leaves behind.

#include "e2e/driver/accessible_reader.h"
#include "e2e/driver/late_call.h"
#include "e2e/driver/screen.h"
#include "e2e/host_test.h"
#include "win32/base/variant.h"

namespace tavrin::e2e {
namespace {

using win32::Bstr;

constexpr COLORREF Green = RGB(0, 255, 0);
constexpr COLORREF Red = RGB(255, 0, 0);

class ApelTest : public HostTest {
  protected:
    /// Calls late-bound; the first argument, the connection, is put before the given ones.
    HRESULT CallLate(std::vector<VARIANT> rest, UINT* badArgument = nullptr) {
        return host->Call([&] {
            rest.insert(rest.begin(), ObjectArgument(&host->Data().Connection()));
            return CallByName(*host->Object(), L"Apel", rest, badArgument);
        });
    }

    /// That Apel took the day and the connection: the rate list shows the day's month.
    void ExpectMonthInRateList(const std::string& monthAndYear) {
        Click(AwaitForm("Utilitati").Control("cmdAction(3)"));
        const Window list = AwaitForm("CursValutar");
        host->Ui().Settle();
        const TableTexts table = ReadTable(host->Ui(), list.Control("Grid"));
        ASSERT_GT(table.size(), 1U);
        EXPECT_EQ(table[1][0].substr(3), monthAndYear);
    }

    static void ExpectNoPalette() { EXPECT_FALSE(FindForm("Utilitati")); }

    const HostValues june{};
    const DATE day = OleDay({});
};

// Early-bound.

TEST_F(ApelTest, ShowsThePaletteInTheCornerOfTheScreen) {
    ASSERT_EQ(host->Apel(), S_OK);
    const Window palette = AwaitForm("Utilitati");
    EXPECT_EQ(palette.ScreenBounds().left, 0);
    EXPECT_EQ(palette.ScreenBounds().top, 0);
    EXPECT_EQ(GetWindow(palette.Handle(), GW_OWNER), nullptr) << "no window of the host may own it";
    EXPECT_TRUE(palette.IsTopmost());
}

TEST_F(ApelTest, FocusesTheCalculatorButtonWhileTheFirstCaptionIsLit) {
    const Window palette = OpenPalette();
    EXPECT_EQ(FocusedName(), "cmdAction(2)");
    EXPECT_TRUE(ShowsColor(palette.Control("Label1"), Green));
    for (const char* label : {"Label2", "Label3", "Label4"}) {
        EXPECT_TRUE(ShowsColor(palette.Control(label), Red)) << label;
        EXPECT_FALSE(ShowsColor(palette.Control(label), Green)) << label;
    }
}

TEST_F(ApelTest, PassesConnectionAndDayOn) {
    ASSERT_EQ(host->Apel(june), S_OK);
    ExpectMonthInRateList("06/2003");
}

TEST_F(ApelTest, ASecondCallReplacesTheValuesInTheSamePalette) {
    const Window palette = OpenPalette({2003, 5, 20, 2});
    ASSERT_EQ(host->Apel({2002, 11, 20, 2}), S_OK);
    EXPECT_EQ(AwaitForm("Utilitati"), palette);
    EXPECT_EQ(OpenForms().size(), 1U);
    ASSERT_TRUE(AwaitFocus("cmdAction(2)"));
    ExpectMonthInRateList("11/2002");
}

TEST_F(ApelTest, ASecondCallLetsGoOfTheFirstConnection) {
    OpenPalette();
    const int references = host->ReferencesToConnection();
    EXPECT_GT(references, 0);
    host->Apel();
    EXPECT_EQ(host->ReferencesToConnection(), references);
    host->ApelWith(nullptr);
    EXPECT_EQ(host->ReferencesToConnection(), 0);
}

TEST_F(ApelTest, ACallAfterThePaletteWasClosedOpensItAgain) {
    OpenPalette();
    PressKey(VK_ESCAPE);
    ASSERT_TRUE(AwaitClosed("Utilitati"));
    OpenPalette();
}

TEST_F(ApelTest, ANullPointerForTheConnectionIsRefused) {
    const HRESULT result = host->Call([&] { return host->Object()->Apel(nullptr, day, 2003, 2); });
    EXPECT_EQ(result, E_POINTER);
    ExpectNoPalette();
}

// Late-bound.

TEST_F(ApelTest, TakesArgumentsByValue) {
    EXPECT_EQ(CallLate({DateArgument(day), ShortArgument(2003), LongArgument(2)}), S_OK);
    ExpectMonthInRateList("06/2003");
}

TEST_F(ApelTest, TakesArgumentsByReference) {
    const HRESULT result = host->Call([&] {
        IDispatch* connection = &host->Data().Connection();
        double date = day;
        short year = 2003;
        long company = 2;
        return CallByName(
            *host->Object(), L"Apel",
            {ReferenceTo(connection), ReferenceToDate(date), ReferenceTo(year), ReferenceTo(company)});
    });
    EXPECT_EQ(result, S_OK);
    ExpectMonthInRateList("06/2003");
}

TEST_F(ApelTest, TakesVariantsByReference) {
    const HRESULT result = host->Call([&] {
        VARIANT connection = ObjectArgument(&host->Data().Connection());
        VARIANT date = DateArgument(day);
        VARIANT year = ShortArgument(2003);
        VARIANT company = LongArgument(2);
        return CallByName(
            *host->Object(), L"Apel",
            {ReferenceTo(connection), ReferenceTo(date), ReferenceTo(year), ReferenceTo(company)});
    });
    EXPECT_EQ(result, S_OK);
    ExpectMonthInRateList("06/2003");
}

TEST_F(ApelTest, TakesAReferenceInsideAReferencedVariant) {
    const HRESULT result = host->Call([&] {
        IDispatch* object = &host->Data().Connection();
        VARIANT connection = ReferenceTo(object);
        return CallByName(*host->Object(), L"Apel",
                          {ReferenceTo(connection), DateArgument(day), ShortArgument(2003), LongArgument(2)});
    });
    EXPECT_EQ(result, S_OK);
    ExpectMonthInRateList("06/2003");
}

TEST_F(ApelTest, ConvertsNumbers) {
    EXPECT_EQ(CallLate({DoubleArgument(day), LongArgument(2003), ShortArgument(2)}), S_OK);
    ExpectMonthInRateList("06/2003");
}

TEST_F(ApelTest, ConvertsTexts) {
    const Bstr date(std::string_view("2003-06-16"));
    const Bstr year(std::string_view("2003"));
    const Bstr company(std::string_view("2"));
    EXPECT_EQ(CallLate({TextArgument(date.Get()), TextArgument(year.Get()), TextArgument(company.Get())}),
              S_OK);
    ExpectMonthInRateList("06/2003");
}

TEST_F(ApelTest, TakesNamedArguments) {
    const HRESULT result = host->Call([&] {
        return CallWithNamedArguments(*host->Object(), L"Apel",
                                      {ObjectArgument(&host->Data().Connection()), DateArgument(day),
                                       ShortArgument(2003), LongArgument(2)},
                                      {L"argDataProgram", L"bExercitiuInCurs", L"IdsoCN"});
    });
    EXPECT_EQ(result, S_OK);
    ExpectMonthInRateList("06/2003");
}

TEST_F(ApelTest, FindsTheNameWithoutRegardToCase) {
    const HRESULT result = host->Call([&] {
        return CallByName(*host->Object(), L"apel",
                          {ObjectArgument(nullptr), DateArgument(day), ShortArgument(2003), LongArgument(2)});
    });
    EXPECT_EQ(result, S_OK);
}

TEST_F(ApelTest, AnUnknownNameIsTheStandardError) {
    EXPECT_EQ(host->Call([&] { return CallByName(*host->Object(), L"Apel2", {}); }), DISP_E_UNKNOWNNAME);
}

TEST_F(ApelTest, AWrongCountIsTheStandardError) {
    EXPECT_EQ(host->Call([&] { return CallByName(*host->Object(), L"Apel", {}); }), DISP_E_BADPARAMCOUNT);
    EXPECT_EQ(CallLate({DateArgument(day), ShortArgument(2003)}), DISP_E_BADPARAMCOUNT);
    EXPECT_EQ(CallLate({DateArgument(day), ShortArgument(2003), LongArgument(2), LongArgument(3)}),
              DISP_E_BADPARAMCOUNT);
    ExpectNoPalette();
}

TEST_F(ApelTest, AnInconvertibleArgumentIsTheStandardErrorWithItsPlace) {
    const Bstr text(std::string_view("no date"));
    UINT place = 99;
    EXPECT_EQ(CallLate({TextArgument(text.Get()), ShortArgument(2003), LongArgument(2)}, &place),
              DISP_E_TYPEMISMATCH);
    EXPECT_EQ(place, 2U) << "places count from the last argument";
    EXPECT_EQ(CallLate({DateArgument(day), TextArgument(text.Get()), LongArgument(2)}, &place),
              DISP_E_TYPEMISMATCH);
    EXPECT_EQ(place, 1U);
    EXPECT_EQ(CallLate({DateArgument(day), ShortArgument(2003), TextArgument(text.Get())}, &place),
              DISP_E_TYPEMISMATCH);
    EXPECT_EQ(place, 0U);
    ExpectNoPalette();
}

TEST_F(ApelTest, ANumberForTheConnectionIsTheStandardError) {
    const HRESULT result = host->Call([&] {
        return CallByName(*host->Object(), L"Apel",
                          {LongArgument(1), DateArgument(day), ShortArgument(2003), LongArgument(2)});
    });
    EXPECT_EQ(result, DISP_E_TYPEMISMATCH);
    ExpectNoPalette();
}

TEST_F(ApelTest, ANumberTooLargeIsTheStandardError) {
    EXPECT_EQ(CallLate({DateArgument(day), LongArgument(70000), LongArgument(2)}), DISP_E_OVERFLOW);
    ExpectNoPalette();
}

TEST_F(ApelTest, NullAndMissingArgumentsAreRefused) {
    EXPECT_EQ(CallLate({NullArgument(), ShortArgument(2003), LongArgument(2)}), DISP_E_TYPEMISMATCH);
    EXPECT_EQ(CallLate({MissingArgument(), ShortArgument(2003), LongArgument(2)}), DISP_E_PARAMNOTOPTIONAL);
    ExpectNoPalette();
}

TEST_F(ApelTest, ADanglingReferenceIsRefused) {
    VARIANT dangling = LongArgument(0);
    dangling.vt = VT_BYREF | VT_I4;
    dangling.plVal = nullptr;
    EXPECT_EQ(CallLate({DateArgument(day), ShortArgument(2003), dangling}), DISP_E_TYPEMISMATCH);
    ExpectNoPalette();
}

}  // namespace
}  // namespace tavrin::e2e
