#include "reader/text_generator.hpp"

#include <utility>
#include <vector>

namespace nurl::test {

namespace {

using Fragments = std::vector<std::string>;

/// Texts put together from any number of the fragments.
rc::Gen<std::string> joined(Fragments fragments) {
    return rc::gen::map(rc::gen::container<Fragments>(rc::gen::elementOf(std::move(fragments))),
                        [](const Fragments& parts) {
                            std::string text;
                            for (const std::string& part : parts) text += part;
                            return text;
                        });
}

}  // namespace

rc::Gen<std::string> keyword_mixture() {
    return joined(
        {"A",       "b",  "Key",  "x_1", "2",  "=",  "=", "=",    " = ", "A=1",
         " B=2",    "(",  ")",    "(1)", "((", "))", "$", "$END", " ",   " ",
         " ",       "\t", "\r\n", "\n",  "\v", "\f", "'", "!",    ",",   std::string(1, '\0'),
         "\xC3\xA4"});
}

rc::Gen<std::string> deck_mixture() {
    return joined({"$CONTRL",
                   " $contrl ",
                   "$SYSTEM ",
                   "$BASIS ",
                   "$SCF ",
                   "$GUESS ",
                   "$DATA",
                   "$data ",
                   "$VEC",
                   "$PCM ",
                   "$",
                   "$ ",
                   "$$X",
                   "$END",
                   " $end",
                   " $ENDX ",
                   "$EN",
                   "\n",
                   "\n",
                   "\n",
                   "\n ",
                   "\r\n",
                   "\r",
                   " ",
                   " ",
                   "\t",
                   "\v",
                   "   \n",
                   "=",
                   " = ",
                   "SCFTYP=uhf ",
                   "MULT=",
                   " ICHARG=-1",
                   "UNITS=BOHR ",
                   "NOSYM=1 ",
                   "MWORDS=50 ",
                   "GBASIS=N31 ",
                   "NGAUSS=6",
                   "DIRSCF=.T.",
                   "DIIS=maybe ",
                   "NORB=3 ",
                   "IEF(1)=2 ",
                   "some words",
                   "A(",
                   ")",
                   "! comment",
                   "# A=1",
                   "C1\n",
                   "Title\n",
                   "H 1.0 0.0 0.0 0.7\n",
                   "1 O 8.0D+00 .0 0. -1.5e-3 ",
                   "1 8.0 0 0 0\n",
                   "S 3",
                   "12345",
                   std::string(1, '\0'),
                   "\xC3\xA4",
                   "\xEF\xBB\xBF"});
}

}  // namespace nurl::test
