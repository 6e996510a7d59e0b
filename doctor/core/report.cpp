#include "doctor/core/report.h"

#include <algorithm>

#include "doctor/core/product.h"

namespace tavrin::doctor {
namespace {

const Text Title{"Tavrin: starea calculatorului și a bazei de date", "Tavrin: state of machine and database"};

Text Mark(Verdict verdict) {
    switch (verdict) {
        case Verdict::Good:
            return {"bine", "good"};
        case Verdict::Warning:
            return {"atenție", "warning"};
        case Verdict::Error:
            break;
    }
    return {"EROARE", "ERROR"};
}

const char* StyleName(Verdict verdict) {
    switch (verdict) {
        case Verdict::Good:
            return "good";
        case Verdict::Warning:
            return "warning";
        case Verdict::Error:
            break;
    }
    return "error";
}

Text Summary(const Report& report) {
    const std::string errors = std::to_string(Count(report, Verdict::Error));
    const std::string warnings = std::to_string(Count(report, Verdict::Warning));
    return {"erori: " + errors + ", avertismente: " + warnings,
            "errors: " + errors + ", warnings: " + warnings};
}

/// What made the report, where and when.
Text Head(const Origin& origin) {
    return Same(std::string("tavrin_doctor ") + BuildVersion) + Text{", calculatorul ", ", machine "} +
           Same(origin.machine + ", " + origin.time);
}

/// Filled up with blanks to the width of its column. Letters of two bytes take one place there.
std::string Padded(const std::string& text) {
    constexpr std::ptrdiff_t Width = 9;
    const auto letters = std::ranges::count_if(
        text, [](char character) { return (static_cast<unsigned char>(character) & 0xC0U) != 0x80U; });
    return text + std::string(static_cast<std::size_t>(std::max(Width - letters, std::ptrdiff_t{0})), ' ');
}

std::string Escaped(const std::string& text) {
    std::string escaped;
    for (const char character : text) {
        switch (character) {
            case '&':
                escaped += "&amp;";
                break;
            case '<':
                escaped += "&lt;";
                break;
            case '>':
                escaped += "&gt;";
                break;
            case '"':
                escaped += "&quot;";
                break;
            default:
                escaped += character;
        }
    }
    return escaped;
}

std::string Element(const std::string& name, const std::string& text) {
    return "<" + name + ">" + Escaped(text) + "</" + name + ">";
}

std::string HtmlRow(const Finding& finding, Language language) {
    std::string row = std::string("<tr class=\"") + StyleName(finding.verdict) + "\">";
    row +=
        Element("th", Mark(finding.verdict).In(language)) + "<td>" + Element("p", finding.what.In(language));
    const std::string& advice = finding.advice.In(language);
    if (!advice.empty()) row += Element("em", advice);
    return row + "</td></tr>\n";
}

constexpr const char* Style =
    "<style>body{font:15px sans-serif;max-width:60em;margin:2em auto;padding:0 "
    "1em}table{border-collapse:collapse;"
    "width:100%}th{width:6em;text-align:left;vertical-align:top}th,td{padding:.3em .6em;border-bottom:1px "
    "solid "
    "#ccc}p{margin:0;white-space:pre-wrap}.error th{color:#a00}.warning th{color:#850}.good "
    "th{color:#060}</style>";

}  // namespace

std::size_t Count(const Report& report, Verdict verdict) {
    std::size_t count = 0;
    for (const Section& section : report)
        count += static_cast<std::size_t>(std::ranges::count(section.findings, verdict, &Finding::verdict));
    return count;
}

std::string PlainReport(const Report& report, const Origin& origin, Language language) {
    std::string text = Head(origin).In(language) + "\n\n";
    for (const Section& section : report) {
        text += section.title.In(language) + "\n";
        for (const Finding& finding : section.findings) {
            text += "  " + Padded(Mark(finding.verdict).In(language)) + finding.what.In(language) + "\n";
            const std::string& advice = finding.advice.In(language);
            if (!advice.empty()) text += "           -> " + advice + "\n";
        }
        text += "\n";
    }
    return text + Summary(report).In(language) + "\n";
}

std::string HtmlReport(const Report& report, const Origin& origin, Language language) {
    std::string page = language == Language::Romanian ? "<!DOCTYPE html>\n<html lang=\"ro\">"
                                                      : "<!DOCTYPE html>\n<html lang=\"en\">";
    page +=
        "<head><meta charset=\"utf-8\">" + Element("title", Title.In(language)) + Style + "</head>\n<body>";
    page += Element("h1", Title.In(language)) + Element("p", Head(origin).In(language));
    page += Element("p", Summary(report).In(language)) + "\n";
    for (const Section& section : report) {
        page += Element("h2", section.title.In(language)) + "<table>\n";
        for (const Finding& finding : section.findings)
            page += HtmlRow(finding, language);
        page += "</table>\n";
    }
    return page + "</body></html>\n";
}

}  // namespace tavrin::doctor
