// Whether the C runtime's conversions of doubles, which know no locale, could stand in the place of the
// component's own: how often they answer something else, by kinds of numbers, and how long they take as a
// ratio to them. Numbers that the quick way for amounts takes are left out.
//
//     runtime_conversions [thousands of numbers of each kind, 1000 unless given]

#include <algorithm>
#include <array>
#include <bit>
#include <chrono>
#include <clocale>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <random>
#include <string>
#include <vector>

#include "data/text/decimal.h"

#ifndef _WIN32
#include <locale.h>  // NOLINT(modernize-deprecated-headers): newlocale
#endif

namespace {

using namespace tavrin;

constexpr std::size_t AtOnce = 2000;  // a decimal has room for all digits of a double
/// As many as are shown; as many as tell all doubles apart; and more than any runtime promises.
constexpr std::array<int, 3> Asked = {data::SignificantDigits, 17, 40};
constexpr std::size_t LongestText = 400;

#ifdef _WIN32
void RuntimeDigits(std::array<char, LongestText>& text, double number, int digits, int& point) {
    int sign = 0;
    _ecvt_s(text.data(), text.size(), number, digits, &point, &sign);
}
double RuntimeNumber(const char* text) {
    static const _locale_t neutral = _create_locale(LC_ALL, "C");
    return _strtod_l(text, nullptr, neutral);
}
#else
void RuntimeDigits(std::array<char, LongestText>& text, double number, int digits, int& point) {
    int sign = 0;
    ecvt_r(number, digits, &point, &sign, text.data(), text.size());
}
double RuntimeNumber(const char* text) {
    static const locale_t neutral = newlocale(LC_ALL_MASK, "C", nullptr);
    return strtod_l(text, nullptr, neutral);
}
#endif

/// What the runtime makes of a number when asked for so many digits, rounded on to what is shown.
data::Decimal RuntimeDecimal(double number, int digits) {
    std::array<char, LongestText> text{};
    data::Decimal decimal;
    RuntimeDigits(text, number, digits, decimal.point);
    decimal.digits = text.data();
    decimal.digits.DropLast('0');
    decimal.RoundToDigits(data::SignificantDigits);
    return decimal;
}

class Numbers {
  public:
    double Quotient() { return Whole(13) / Whole(9); }
    double Product() { return Whole(15) / 1e4 * (Whole(9) / 1e7); }
    double AnyBits() {
        for (;;) {
            const auto number = std::bit_cast<double>(random_() >> 1);
            if (std::isfinite(number) && number > 0) return number;
        }
    }
    /// Sixteen digits, the last a five: which of two decimals of fifteen is meant, the even one or the
    /// nearer.
    double Tie() {
        const double whole = 1e14 + static_cast<double>(random_() % 900'000'000'000'000);
        return whole < 4e15 ? std::floor(whole) + 0.5 : whole;
    }
    double NearTie() {
        const double tens = data::PowersOfTen[random_() % data::PowersOfTen.size()];
        const double tie =
            (std::floor(1e14 + static_cast<double>(random_() % 300'000'000'000'000)) + 0.5) / tens;
        const std::array<double, 3> around = {std::nextafter(tie, 0), tie, std::nextafter(tie, 1e300)};
        return around[random_() % around.size()];
    }

    /// A number as text, of so many digits and with so many tens.
    std::string Text(int digits, int tens) {
        std::string text(1, static_cast<char>('1' + random_() % 9));
        while (text.size() < static_cast<std::size_t>(digits))
            text += static_cast<char>('0' + random_() % 10);
        const int exponent = static_cast<int>(random_() % static_cast<unsigned>(2 * tens + 1)) - tens;
        return text + "e" + std::to_string(exponent - digits);
    }
    /// The middle between two whole doubles, or next to it.
    std::string Middle() {
        const std::uint64_t even = (std::uint64_t{1} << 53) + 2 * (random_() >> 12);
        const std::array<const char*, 3> ends = {"", ".0000000000000000000001", ".000"};
        return std::to_string(even + 1) + ends[random_() % ends.size()];
    }

  private:
    double Whole(int digits) {
        return static_cast<double>(1 + random_() % static_cast<std::uint64_t>(std::pow(10, digits)));
    }

    std::mt19937_64 random_{20030616};
};

double Seconds(const std::function<void()>& work) {
    const auto begin = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
}

bool IsSame(const data::Decimal& one, const data::Decimal& other) {
    return one.point == other.point && one.digits.View() == other.digits.View();
}

/// How often something else is answered, and how long it takes.
struct Findings {
    std::size_t count = 0;
    std::size_t others = 0;
    double own = 0;
    double runtime = 0;

    void Print(const std::string& kind) const {
        std::printf("%-36s %9zu  others %8zu  time %5.2f\n", kind.c_str(), count, others, runtime / own);
    }
};

void Compare(Findings& found, const std::vector<double>& numbers, int digits) {
    std::vector<data::Decimal> own(numbers.size());
    std::vector<data::Decimal> runtime(numbers.size());
    found.own += Seconds([&] { std::ranges::transform(numbers, own.begin(), data::DecimalOf); });
    found.runtime += Seconds([&] {
        std::ranges::transform(numbers, runtime.begin(),
                               [digits](double number) { return RuntimeDecimal(number, digits); });
    });
    found.count += numbers.size();
    for (std::size_t i = 0; i < numbers.size(); ++i)
        if (!IsSame(own[i], runtime[i])) ++found.others;
}

void Write(const std::string& kind, std::size_t count, const std::function<double()>& next) {
    std::array<Findings, Asked.size()> found;
    for (std::size_t done = 0; done < count; done += AtOnce) {
        std::vector<double> numbers;
        while (numbers.size() < AtOnce) {
            const double number = next();
            if (!data::Millionths(number)) numbers.push_back(number);
        }
        for (std::size_t i = 0; i < Asked.size(); ++i)
            Compare(found[i], numbers, Asked[i]);
    }
    for (std::size_t i = 0; i < Asked.size(); ++i)
        found[i].Print("write " + kind + ", " + std::to_string(Asked[i]) + " digits");
}

void Read(const std::string& kind, std::size_t count, const std::function<std::string()>& next) {
    Findings found;
    for (; found.count < count; found.count += AtOnce) {
        std::vector<std::string> texts(AtOnce);
        std::ranges::generate(texts, next);
        std::vector<double> own(AtOnce);
        std::vector<double> runtime(AtOnce);
        found.own += Seconds([&] {
            std::ranges::transform(texts, own.begin(), [](const std::string& text) {
                return data::ReadDecimal(text, data::Exponents::Read).number;
            });
        });
        found.runtime += Seconds([&] {
            std::ranges::transform(texts, runtime.begin(),
                                   [](const std::string& text) { return RuntimeNumber(text.c_str()); });
        });
        for (std::size_t i = 0; i < AtOnce; ++i)
            if (own[i] != runtime[i]) ++found.others;
    }
    found.Print("read " + kind);
}

}  // namespace

int main(int count, char** arguments) {
    const std::size_t each = (count > 1 ? std::strtoul(arguments[1], nullptr, 10) : 1000) * 1000;
    Numbers numbers;
    Write("quotients", each, [&] { return numbers.Quotient(); });
    Write("products", each, [&] { return numbers.Product(); });
    Write("ties", each, [&] { return numbers.Tie(); });
    Write("next to ties", each, [&] { return numbers.NearTie(); });
    Write("any double", each, [&] { return numbers.AnyBits(); });
    Read("16 digits, small exponents", each, [&] { return numbers.Text(16, 20); });
    Read("20 digits, small exponents", each, [&] { return numbers.Text(20, 20); });
    Read("17 digits, any exponent", each, [&] { return numbers.Text(17, 290); });
    Read("middles between doubles", each, [&] { return numbers.Middle(); });
}
