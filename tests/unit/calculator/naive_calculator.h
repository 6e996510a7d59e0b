#pragma once

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <string>

namespace tavrin::tests {

/// The calculator's rules once more, one key after the other and written for nothing but to be read: slow, in
/// one piece, without any code of the engine. Keys are those of TwoDisplays::Press. Errors are thrown as
/// their number.
class NaiveCalculator {
  public:
    explicit NaiveCalculator(char decimalSeparator) : separator(decimalSeparator) {}

    void Press(char key) {
        if (key >= '0' && key <= '9') {
            Digit(key);
        } else if (key == '.') {
            if (entry.find(separator) == std::string::npos && !decimalPending) {
                decimalPending = true;
            } else {
                ignored = ignored + 1;
            }
        } else if (key == 'n') {
            if (entry.find('-') == std::string::npos && entry != "0") {
                entry = "-" + entry;
                accumulator = accumulator * -1;
                ShowValues();
            } else {
                ignored = ignored + 1;
            }
        } else if (key == 'A') {
            pendingOperator = 0;
            entry = "0";
            accumulator = operand = memory = 0;
            mark = false;
            decimalPending = false;
            newEntry = true;
            operandCount = 0;
        } else if (key == 'C') {
            entry = "0";
            decimalPending = false;
            newEntry = true;
        } else if (key == '<') {
            Backspace();
        } else if (key == 'Z') {
            mark = false;
            memory = 0;
        } else if (key == 'R') {
            entry = TextOf(memory);
            ShowValues();
        } else if (key == 'M' || key == 'W') {
            mark = true;
            memory = ValueOf(TextOf(Checked(key == 'M' ? ValueOf(entry) + memory : memory - ValueOf(entry))));
            entry = "0";
            ShowValues();
        } else {
            try {
                Operator(key);
            } catch (int) {
                pendingOperator = 0;
                accumulator = operand = 0;
                operandCount = 0;
                newEntry = true;
                decimalPending = false;
                throw;
            }
        }
    }

    void ChooseUnit(bool chooseLei) {
        unitIsLei = chooseLei;
        entry = TextOf(unitIsLei ? lei : currency);
        ShowValues();
    }

    void ChooseDecimals(int chosen) {
        decimals = chosen;
        ShowValues();
    }

    char separator;
    std::string entry = "0";
    bool newEntry = true;
    bool decimalPending = false;
    char pendingOperator = 0;
    int operandCount = 0;
    double accumulator = 0;
    double operand = 0;
    double memory = 0;
    int decimals = 2;
    double rate = 1;
    bool unitIsLei = true;
    double lei = 0;
    double currency = 0;
    bool mark = false;
    int messages = 0;
    int ignored = 0;

  private:
    void Digit(char digit) {
        if (newEntry) entry = "0";
        newEntry = false;
        if (entry.size() >= 15) {
            ignored = ignored + 1;
            return;
        }
        const std::size_t at = entry.find(separator);
        if (at != std::string::npos && at >= 1) {
            const std::string tail = entry.substr(at);
            if (static_cast<int>(tail.size()) > decimals) {
                ignored = ignored + 1;
                return;
            }
        }
        if (!decimalPending) {
            if (entry == "0") {
                entry = digit;
            } else {
                entry = entry + digit;
            }
        } else {
            entry = entry + separator + digit;
        }
        decimalPending = false;
        ShowValues();
    }

    void Operator(char cap) {
        if (newEntry) {
            pendingOperator = cap;
            return;
        }
        operandCount = operandCount + 1;
        if (operandCount == 1) {
            accumulator = Entered();
            if (cap == '%') {
                operandCount = 0;
                ignored = ignored + 1;
                return;
            }
            pendingOperator = cap;
            newEntry = true;
        } else if (operandCount == 2) {
            operand = Entered();
            if (cap == '%') {
                if (pendingOperator == '+') accumulator = Checked(accumulator * (1 + operand / 100));
                if (pendingOperator == '-') accumulator = Checked(accumulator * (1 - operand / 100));
                if (pendingOperator == 'X') accumulator = Checked(Checked(accumulator * operand) / 100);
                if (pendingOperator == '/' && operand == 0) messages = messages + 1;
                if (pendingOperator == '/' && operand != 0) accumulator = Divided(accumulator, operand / 100);
                entry = TextOf(Checked(Rounded(accumulator)));
                ShowValues();
                operand = 0;
                operandCount = 0;
                newEntry = true;
            } else if (pendingOperator == '=') {
                entry = TextOf(Checked(Rounded(operand)));
                ShowValues();
                accumulator = operand = 0;
                operandCount = 0;
                newEntry = true;
            } else {
                if (pendingOperator == '+') accumulator = Checked(accumulator + operand);
                if (pendingOperator == '-') accumulator = Checked(accumulator - operand);
                if (pendingOperator == 'X') accumulator = Checked(accumulator * operand);
                if (pendingOperator == '/' && operand == 0) messages = messages + 1;
                if (pendingOperator == '/' && operand != 0) accumulator = Divided(accumulator, operand);
                entry = TextOf(Checked(Rounded(accumulator)));
                ShowValues();
                operandCount = 1;
                newEntry = true;
                pendingOperator = cap;
            }
        }
    }

    void Backspace() {
        if (entry.size() == 1) {
            entry = "0";
        } else {
            entry = entry.substr(0, entry.size() - 1);
            if (entry.back() == separator) entry = entry.substr(0, entry.size() - 1);
        }
        decimalPending = false;
        ShowValues();
    }

    void ShowValues() {
        if (entry == "-0") {
            lei = currency = 0;
        } else if (unitIsLei) {
            lei = Checked(ValueOf(entry));
            currency = Divided(ValueOf(entry), rate);
        } else {
            currency = Checked(ValueOf(entry));
            lei = Checked(ValueOf(entry) * rate);
        }
    }

    double Entered() const { return entry == "-0" ? 0 : unitIsLei ? lei : currency; }

    static double Checked(double result) {
        if (std::isinf(result) || std::isnan(result)) throw 6;
        return result;
    }

    static double Divided(double dividend, double divisor) {
        if (divisor == 0) throw dividend == 0 ? 6 : 11;
        return Checked(dividend / divisor);
    }

    double ValueOf(std::string text) const {
        const std::size_t first = text.find(separator);
        if (first != std::string::npos) {
            text = text.substr(0, text.find(separator, first + 1));
            text[first] = '.';
        }
        return std::strtod(text.c_str(), nullptr) + 0.0;
    }

    /// What a number stands for: digits[0].digits[1]... times ten to the power of the exponent.
    struct Standing {
        std::string digits;
        int exponent;
    };

    static Standing StandingFor(double number) {
        char text[40];
        std::snprintf(text, sizeof text, "%.14e", std::fabs(number));
        std::string digits = text;
        const int exponent = std::atoi(digits.substr(digits.find('e') + 1).c_str());
        digits = digits.substr(0, digits.find('e'));
        digits.erase(1, 1);
        return {digits, exponent};
    }

    double Rounded(double number) const {
        Standing standing = StandingFor(number);
        std::string& digits = standing.digits;
        const int kept = standing.exponent + 1 + decimals;
        if (kept < 0) return 0;
        if (kept < static_cast<int>(digits.size())) {
            const std::string rest = digits.substr(static_cast<std::size_t>(kept));
            const std::string tie = "5" + std::string(rest.size() - 1, '0');
            digits = "0" + digits.substr(0, static_cast<std::size_t>(kept));
            standing.exponent = standing.exponent + 1;
            if (rest > tie || (rest == tie && (digits.back() - '0') % 2 == 1)) {
                std::size_t place = digits.size() - 1;
                while (digits[place] == '9') {
                    digits[place] = '0';
                    place = place - 1;
                }
                digits[place] = static_cast<char>(digits[place] + 1);
            }
        }
        const std::string sign = number < 0 ? "-" : "";
        digits.insert(1, ".");
        return std::strtod((sign + digits + "e" + std::to_string(standing.exponent)).c_str(), nullptr) + 0.0;
    }

    std::string TextOf(double number) const {
        if (number == 0) return "0";
        const auto [digits, exponent] = StandingFor(number);
        std::string text = digits.substr(0, digits.find_last_not_of('0') + 1);
        while (static_cast<int>(text.size()) < exponent + 1)
            text = text + "0";
        std::string whole = "0";
        std::string fraction = text;
        if (exponent >= 0) {
            whole = text.substr(0, static_cast<std::size_t>(exponent) + 1);
            fraction = text.substr(static_cast<std::size_t>(exponent) + 1);
        } else {
            fraction = std::string(static_cast<std::size_t>(-exponent - 1), '0') + text;
        }
        if (!fraction.empty()) whole = whole + separator + fraction;
        return number < 0 ? "-" + whole : whole;
    }
};

}  // namespace tavrin::tests
