// The macro vocabulary of configuration values: label words that only make a
// line readable, and value words that stand for common numbers and vectors.
#include "config/text_ops.h"

#include <array>

namespace {

enum class LabelKind {
    First, // the first occurrence is deleted
    Inner, // the first occurrence, blanks included, becomes one blank
};

struct LabelWord {
    std::string_view literal;
    LabelKind kind;
};

constexpr std::array kLabelWords{
    LabelWord{"pos ", LabelKind::First},   LabelWord{"dir ", LabelKind::First},
    LabelWord{"rot ", LabelKind::First},   LabelWord{"tilt ", LabelKind::First},
    LabelWord{"vert ", LabelKind::First},  LabelWord{"hor ", LabelKind::First},
    LabelWord{"blast ", LabelKind::First}, LabelWord{"qmax ", LabelKind::First},
    LabelWord{"Mass ", LabelKind::First},  LabelWord{"PMI ", LabelKind::First},
    LabelWord{" RR ", LabelKind::Inner},   LabelWord{" SF ", LabelKind::Inner},
    LabelWord{"PMS ", LabelKind::First},   LabelWord{"YMS ", LabelKind::First},
    LabelWord{"Size ", LabelKind::First},  LabelWord{" CS ", LabelKind::Inner},
    LabelWord{" CW ", LabelKind::Inner},   LabelWord{"TDP ", LabelKind::First},
    LabelWord{"ExhT ", LabelKind::First},  LabelWord{"ExhP ", LabelKind::First},
};

struct ValueWord {
    std::string_view word;
    std::string_view replacement;
};

// The sine and cosine values are the established ones of the configuration
// files, including those of 30 and 60 degrees; they must not be "corrected".
constexpr std::array kValueWords{
    ValueWord{"cos45d", "0.707107"}, ValueWord{"sin45d", "0.707107"}, ValueWord{"cos30d", "0.5"},
    ValueWord{"sin30d", "0.877583"}, ValueWord{"cos60d", "0.877583"}, ValueWord{"sin60d", "0.5"},
    ValueWord{"xyz0", "0 0 0"},      ValueWord{"v111", "1 1 1"},      ValueWord{"xplus", "1 0 0"},
    ValueWord{"xminus", "-1 0 0"},   ValueWord{"yplus", "0 1 0"},     ValueWord{"yminus", "0 -1 0"},
    ValueWord{"zplus", "0 0 1"},     ValueWord{"zminus", "0 0 -1"},
};

void ReplaceAll(std::string &text, std::string_view word, std::string_view replacement) {
    std::size_t found = text.find(word);
    if (found == std::string::npos) {
        return;
    }
    std::string result;
    std::size_t copied = 0;
    for (; found != std::string::npos; found = text.find(word, copied)) {
        result.append(text, copied, found - copied);
        result.append(replacement);
        copied = found + word.size();
    }
    result.append(text, copied);
    text = std::move(result);
}

} // namespace

void ExpandMacros(std::string &text) {
    LimitLineLength(text);
    for (const LabelWord &label : kLabelWords) {
        const std::size_t found = text.find(label.literal);
        if (found != std::string::npos) {
            // Rebuilt rather than replaced in place: the same result, and clear
            // of a false overlap warning in the standard library's replace.
            std::string rest = text.substr(found + label.literal.size());
            text.resize(found);
            text += label.kind == LabelKind::Inner ? " " : "";
            text += rest;
        }
    }
    for (const ValueWord &value : kValueWords) {
        ReplaceAll(text, value.word, value.replacement);
    }
    LimitLineLength(text);
}
