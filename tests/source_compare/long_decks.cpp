#include "source_compare/long_decks.hpp"

#include <vector>

namespace nurl::test {

namespace {

using Texts = std::vector<std::string>;

std::string some_of(const Texts& pieces, std::size_t most) {
    const auto count = *rc::gen::inRange<std::size_t>(0, most);
    std::string text;
    for (std::size_t i = 0; i < count; ++i) text += *rc::gen::elementOf(pieces);
    return text;
}

}  // namespace

rc::Gen<std::string> long_deck() {
    return rc::gen::exec([] {
        static const Texts words{" A=1",
                                 "  MAXIT = 30",
                                 ",DIRSCF=.T.",
                                 " IZMAT(1)=1,1,2,2,1,2,3",
                                 " X(4)= 7 8",
                                 "  9",
                                 ",10,",
                                 " , 11",
                                 " ! one !",
                                 "!two! ",
                                 " ! three\n",
                                 "\n   INDAT(1)=0,1,-3,0",
                                 " 0.5D-03",
                                 " 'a, b = c' ",
                                 " stray ! ! ",
                                 "\r\n\tCC(1,2)=4",
                                 " KEY(2)= ! !",
                                 " GUESS=HUCKEL",
                                 " LONGNAME_OF_20_BYTES",
                                 " ! $END or not !"};
        std::string text;
        for (const char* const name : {" $SCF ", " $CONTRL ", " $QUANPO ", " $MYOWN "}) {
            text += name + some_of(words, 60);
            text += *rc::gen::element<std::string>("\n $END\n", " $END\n", "  $end  behind\n");
            // What an open comment hides is closed here.
            text += "\n $END\n";
        }
        return text;
    });
}

rc::Gen<std::string> rough_deck() {
    return rc::gen::exec([] {
        static const Texts pieces{
            "\n $SCF", "\n $QUANPO", "\n $DATA", "\n $VEC\n", " $END",   "\n $END\n", "$END",
            "\n",      "\r\n",       "\r",       " ",         "  ",      "\t",        ",",
            ", ",      "!",          " ! ",      "=",         " = ",     "A",         " KEY",
            "KEY=",    "1",          " 2.0",     " B(1)=1,",  " 'a b' ", "'",         " \"",
            " 'x!y'",  ">",          " >",       " >\n",      " $REKS",  "$",         ";",
            "(",       ")",          " C1\n",    "!!",        "12345678"};
        return some_of(pieces, 80);
    });
}

}  // namespace nurl::test
