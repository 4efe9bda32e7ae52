#include "source/plain_decks.hpp"

#include <vector>

namespace nurl::test {

namespace {

using Texts = std::vector<std::string>;

/// Some of the texts, in their order.
Texts pick_some(const Texts& all) {
    Texts some;
    for (const std::string& text : all)
        if (*rc::gen::arbitrary<bool>()) some.push_back(text);
    return some;
}

std::string keyword_lines(const Texts& keys) {
    std::string text;
    std::size_t column = 10;
    for (const std::string& key : keys) {
        const std::string pair = key + '=' + *plain_value();
        std::string gap = *rc::gen::element<std::string>(" ", "  ", "\n ", "\n    ");
        if (column + pair.size() > 50) gap = "\n  ";
        column = gap.front() == '\n' ? pair.size() + 4 : column + pair.size() + 2;
        text += gap + pair;
    }
    return text;
}

}  // namespace

rc::Gen<std::string> plain_keyword() {
    return rc::gen::element<std::string>("NSTEP", "OPTTOL", "HSSEND", "TRMAX", "X1", "Y_2",
                                         "LONGNAME");
}

rc::Gen<std::string> plain_value() {
    return rc::gen::element<std::string>("1", "-2.5", ".TRUE.", "RHF", "1.0E-05", "1,2,3", "a b",
                                         "3,-5", "GRADIENT", "7,8", "CCSD(T)");
}

rc::Gen<std::string> plain_deck() {
    return rc::gen::exec([] {
        const Texts names = pick_some({"STATPT", "FORCE", "PCM", "DFT", "MYOWN"});
        std::string text;
        for (const std::string& name : names) {
            const Texts keys =
                pick_some({"NSTEP", "OPTTOL", "HSSEND", "TRMAX", "X1", "Y_2", "LONGNAME"});
            text += *rc::gen::element<std::string>("", "a line of prose\n", "\n");
            text += " $" + name + keyword_lines(keys);
            text += *rc::gen::element<std::string>(" $END\n", "\n $END\n", "  $end\n");
        }
        return text;
    });
}

}  // namespace nurl::test
