#include "data/text/decimal.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <limits>
#include <optional>

#include "data/text/big_natural.h"
#include "data/text/binary_parts.h"
#include "data/text/digits.h"

namespace tavrin::data {

namespace {

using Limits = std::numeric_limits<double>;

// No digit beyond these says on which side of the middle between two doubles a number lies, only that
// something follows.
constexpr std::size_t DecisiveDigits = 800;
// Far beyond the largest and the smallest double.
constexpr int HugePoint = 400;

bool IsOdd(double magnitude) {
    return Split(magnitude).significand % 2 == 1;
}

/// How a decimal compares with the middle between a double and the next larger one.
std::strong_ordering CompareWithMiddleAbove(const Decimal& decimal, double magnitude) {
    const BinaryParts parts = Split(magnitude);
    BigNatural left(decimal.digits.View());
    BigNatural right(2 * parts.significand + 1);
    const int tens = decimal.point - static_cast<int>(decimal.digits.Size());
    (tens >= 0 ? left : right).MultiplyByPower(10, std::abs(tens));
    const int twos = parts.exponent - 1;
    (twos >= 0 ? right : left).ShiftLeft(std::abs(twos));
    return left <=> right;
}

bool IsNearerAbove(const Decimal& decimal, double magnitude) {
    const auto order = CompareWithMiddleAbove(decimal, magnitude);
    return std::is_gt(order) || (std::is_eq(order) && IsOdd(magnitude));
}

bool IsNearerBelow(const Decimal& decimal, double magnitude) {
    if (magnitude == 0) return false;
    const auto order = CompareWithMiddleAbove(decimal, std::nextafter(magnitude, 0));
    return std::is_lt(order) || (std::is_eq(order) && IsOdd(magnitude));
}

std::uint64_t NumberOf(std::string_view digits) {
    std::uint64_t number = 0;
    for (const char digit : digits)
        number = number * 10 + static_cast<std::uint64_t>(digit - '0');
    return number;
}

/// A few doubles off at most.
double Estimate(const Decimal& decimal) {
    const std::string_view leading = decimal.digits.View().substr(0, Limits::max_digits10 + 1);
    const int tens = decimal.point - static_cast<int>(leading.size());
    // In two steps: the power alone may be out of range.
    const double half = static_cast<double>(NumberOf(leading)) * std::pow(10, tens / 2);
    return std::min(half * std::pow(10, tens - tens / 2), Limits::max());
}

Decimal WithPlaces(const DigitText& digits, int places) {
    if (digits.IsEmpty()) return {};
    Decimal decimal{digits, static_cast<int>(digits.Size()) - places};
    decimal.digits.DropLast('0');
    return decimal;
}

/// All digits of a double: it has finitely many.
Decimal ExactDecimal(double magnitude) {
    BinaryParts parts = Split(magnitude);
    if (parts.significand == 0) return {};
    const int twos = std::countr_zero(parts.significand);
    BigNatural whole(parts.significand >> twos);
    const int exponent = parts.exponent + twos;
    // A half is five tenths: what is behind the point are powers of five over powers of ten.
    if (exponent < 0) {
        whole.MultiplyByPower(5, -exponent);
    } else {
        whole.ShiftLeft(exponent);
    }
    return WithPlaces(whole.Digits(), std::max(-exponent, 0));
}

/// Takes a text apart from its front.
class Scanner {
  public:
    explicit Scanner(std::string_view text) : text_(text) {}

    std::size_t At() const { return at_; }
    void GoBackTo(std::size_t at) { at_ = at; }

    bool Skip(std::string_view part) {
        if (!text_.substr(at_).starts_with(part)) return false;
        at_ += part.size();
        return true;
    }

    std::string_view TakeDigits() {
        const std::size_t begin = at_;
        while (at_ < text_.size() && IsDigit(text_[at_]))
            ++at_;
        return text_.substr(begin, at_ - begin);
    }

  private:
    std::string_view text_;
    std::size_t at_ = 0;
};

/// The exponent that follows, 0 where none does.
int TakeExponent(Scanner& scanner) {
    const std::size_t begin = scanner.At();
    if (!scanner.Skip("e") && !scanner.Skip("E")) return 0;
    const bool isNegative = scanner.Skip("-");
    if (!isNegative) scanner.Skip("+");
    std::string_view digits = scanner.TakeDigits();
    if (digits.empty()) {
        scanner.GoBackTo(begin);
        return 0;
    }
    constexpr int Enough = 1'000'000;
    int exponent = 0;
    for (const char digit : digits)
        exponent = std::min(exponent * 10 + (digit - '0'), Enough);
    return isNegative ? -exponent : exponent;
}

/// \pre Nothing but digits. Those that decide nothing only tell that something follows.
Decimal FromParts(std::string_view whole, std::string_view fraction, int exponent) {
    const std::size_t wholeZeros = std::min(whole.find_first_not_of('0'), whole.size());
    whole.remove_prefix(wholeZeros);
    const auto point = static_cast<int>(std::min(whole.size(), DecisiveDigits));
    const std::size_t zeros = whole.empty() ? std::min(fraction.find_first_not_of('0'), fraction.size()) : 0;
    fraction.remove_prefix(zeros);
    Decimal decimal{{}, point - static_cast<int>(zeros) + exponent};
    for (const std::string_view part : {whole, fraction}) {
        const std::size_t room = DecisiveDigits - std::min(DecisiveDigits, decimal.digits.Size());
        decimal.digits.Append(part.substr(0, room));
        const bool isLonger =
            part.size() > room && part.find_first_not_of('0', room) != std::string_view::npos;
        if (isLonger) decimal.digits.Append("1");
    }
    decimal.digits.DropLast('0');
    return decimal;
}

}  // namespace

void Decimal::RoundToDigits(int count, Ties ties) {
    const auto kept = static_cast<std::size_t>(std::max(count, 0));
    if (kept >= digits.Size()) return;
    const bool isOdd = kept > 0 && (digits[kept - 1] - '0') % 2 == 1;
    const bool isTie = digits[kept] == '5' && kept + 1 == digits.Size();
    const bool isUp = isTie && ties == Ties::ToEven ? isOdd : digits[kept] >= '5';
    digits.Resize(kept);
    if (isUp && count >= 0) CountUp();
    digits.DropLast('0');
    if (digits.IsEmpty()) point = 0;
}

void Decimal::CountUp() {
    digits.DropLast('9');
    if (!digits.IsEmpty()) {
        ++digits.Last();
        return;
    }
    digits = "1";
    ++point;
}

void Decimal::AppendTo(std::string& text, std::string_view separator) const {
    const auto size = static_cast<int>(digits.Size());
    const auto whole = static_cast<std::size_t>(std::clamp(point, 0, size));
    text += digits.View().substr(0, whole);
    if (point > size) text.append(static_cast<std::size_t>(point - size), '0');
    if (point <= 0) text += '0';
    if (point >= size) return;
    text += separator;
    if (point < 0) text.append(static_cast<std::size_t>(-point), '0');
    text += digits.View().substr(whole);
}

double Decimal::ToDouble() const {
    if (digits.IsEmpty() || point < -HugePoint) return 0;
    if (point > HugePoint) return Limits::infinity();
    const int places = static_cast<int>(digits.Size()) - point;
    if (digits.Size() <= SignificantDigits && places >= 0 && places <= SignificantDigits)
        return static_cast<double>(NumberOf(digits.View())) / PowersOfTen[static_cast<std::size_t>(places)];
    double nearest = Estimate(*this);
    while (std::isfinite(nearest)) {
        if (IsNearerAbove(*this, nearest)) {
            nearest = std::nextafter(nearest, Limits::infinity());
        } else if (IsNearerBelow(*this, nearest)) {
            nearest = std::nextafter(nearest, 0);
        } else {
            break;
        }
    }
    return nearest;
}

Decimal DecimalOf(double magnitude) {
    if (const auto millionths = Millionths(magnitude))
        return WithPlaces(BigNatural(*millionths).Digits(), MillionthPlaces);
    Decimal decimal = ExactDecimal(magnitude);
    decimal.RoundToDigits(SignificantDigits);
    return decimal;
}

std::optional<std::uint64_t> Millionths(double magnitude) {
    // The nearest other decimal of so many digits lies 1e-15 of the number away or further: what is nearer
    // than half of that stands for this one. The double of the decimal is itself a little off.
    constexpr double SafelyNear = 3.5e-16;
    constexpr double Million = PowersOfTen[MillionthPlaces];
    const double scaled = magnitude * Million;
    if (!(scaled < PowersOfTen[SignificantDigits])) return std::nullopt;
    // Never negative, and a tie is none of the numbers looked for.
    // NOLINTNEXTLINE(bugprone-incorrect-roundings)
    const auto nearest = static_cast<std::int64_t>(scaled + 0.5);
    const double off = std::fabs(magnitude - static_cast<double>(nearest) / Million);
    if (off > magnitude * SafelyNear) return std::nullopt;
    return static_cast<std::uint64_t>(nearest);
}

std::optional<Decimal> DecimalIn(std::string_view text) {
    Scanner scanner(text);
    const std::string_view whole = scanner.TakeDigits();
    const std::string_view fraction = scanner.Skip(".") ? scanner.TakeDigits() : std::string_view();
    if (scanner.At() < text.size() || (whole.empty() && fraction.empty())) return std::nullopt;
    return FromParts(whole, fraction, 0);
}

LeadingNumber ReadDecimal(std::string_view text, Exponents exponents, std::string_view separator) {
    Scanner scanner(text);
    const bool isNegative = scanner.Skip("-");
    const std::string_view whole = scanner.TakeDigits();
    const std::string_view fraction = scanner.Skip(separator) ? scanner.TakeDigits() : std::string_view();
    if (whole.empty() && fraction.empty()) return {};
    const int exponent = exponents == Exponents::Read ? TakeExponent(scanner) : 0;
    const double magnitude = FromParts(whole, fraction, exponent).ToDouble();
    return {isNegative ? -magnitude : magnitude, scanner.At()};
}

}  // namespace tavrin::data
