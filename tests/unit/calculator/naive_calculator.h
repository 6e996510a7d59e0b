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
            if (entry.find(separator) == std::string::npos) decimalPending = true;
        } else if (key == 'n') {
            if (entry.find('-') == std::string::npos && entry != "0") {
                entry = "-" + entry;
                accumulator = accumulator * -1;
                ShowValues();
            }
        } else if (key == 'A') {
            pendingOperator = 0;
            entry = "0";
            accumulator = operand = memory = 0;
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
            memory = Checked(key == 'M' ? ValueOf(entry) + memory : memory - ValueOf(entry));
            entry = "0";
            ShowValues();
        } else {
            Operator(key);
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

  private:
    void Digit(char digit) {
        if (newEntry) entry = "0";
        newEntry = false;
        if (entry.size() >= 15) return;
        const std::size_t at = entry.find(separator);
        if (at != std::string::npos && at >= 1) {
            const std::string tail = entry.substr(at);
            if (static_cast<int>(tail.size()) > decimals) return;
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
                entry = TextOf(Rounded(accumulator));
                ShowValues();
                operand = 0;
                operandCount = 0;
                newEntry = true;
            } else if (pendingOperator == '=') {
                entry = TextOf(Rounded(operand));
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
                entry = TextOf(Rounded(accumulator));
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
            lei = ValueOf(entry);
            currency = Divided(ValueOf(entry), rate);
        } else {
            lei = Checked(ValueOf(entry) * rate);
            currency = ValueOf(entry);
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

    double Rounded(double number) const {
        char text[400];
        std::snprintf(text, sizeof text, "%.*f", decimals, number);
        return std::strtod(text, nullptr);
    }

    std::string TextOf(double number) const {
        if (number == 0) return "0";
        char scientific[40];
        int digits = 1;
        do {
            std::snprintf(scientific, sizeof scientific, "%.*e", digits - 1, std::fabs(number));
            digits = digits + 1;
        } while (std::strtod(scientific, nullptr) != std::fabs(number));
        std::string text = scientific;
        const int exponent = std::atoi(text.substr(text.find('e') + 1).c_str());
        text = text.substr(0, text.find('e'));
        if (text.size() > 1) text.erase(1, 1);
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
