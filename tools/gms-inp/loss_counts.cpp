#include "loss_counts.hpp"

#include <string_view>
#include <utility>

namespace gms_inp {

namespace {

/// What follows the number 1, and what follows any other number.
struct Sentence {
    std::string_view one;
    std::string_view many;
};

/// In the order of the enumeration.
constexpr std::array<Sentence, loss_count> sentence_table{{
    {"line of text outside the groups is left out",
     "lines of text outside the groups are left out"},
    {"text behind $END is left out", "texts behind $END are left out"},
    {"further copy of a structured group or of $DATA is merged into the first one",
     "further copies of structured groups or of $DATA are merged into the first ones"},
    {"group behind $DATA is written in front of it",
     "groups behind $DATA are written in front of it"},
    {"piece of free text or comment in $CONTRL, $SYSTEM, $BASIS, $SCF or $GUESS is left out",
     "pieces of free text or comment in $CONTRL, $SYSTEM, $BASIS, $SCF or $GUESS are left out"},
    {"structured group without a keyword is left out",
     "structured groups without a keyword are left out"},
    {"earlier value of a keyword that is given again in $CONTRL, $SYSTEM, $BASIS, $SCF or $GUESS "
     "is left out",
     "earlier values of keywords that are given again in $CONTRL, $SYSTEM, $BASIS, $SCF or $GUESS "
     "are left out"},
    {"value of UNITS other than ANGS and BOHR is written as ANGS",
     "values of UNITS other than ANGS and BOHR are written as ANGS"},
    {"keyword in a comment is written as a keyword that counts",
     "keywords in comments are written as keywords that count"},
    {"comment behind a value is joined with the keywords that follow, which GAMESS then skips",
     "comments behind values are joined with the keywords that follow, which GAMESS then skips"},
    {"keyword group loses its line breaks", "keyword groups lose their line breaks"},
    {"piece of free text or continued value in a keyword group is moved behind the keywords",
     "pieces of free text or continued values in keyword groups are moved behind the keywords"},
    {"text on the header line of a raw group is moved to a line of its own",
     "texts on the header lines of raw groups are moved to lines of their own"},
    {"line of a raw group loses its leading blanks, and fixed columns as in $VEC with them",
     "lines of raw groups lose their leading blanks, and fixed columns as in $VEC with them"},
    {"blank line of a raw group is left out", "blank lines of raw groups are left out"},
    {"text on the header line of $DATA is written as a line of its own",
     "texts on the header lines of $DATA are written as lines of their own"},
    {"blank line of $DATA is left out or moved behind the atoms; GAMESS needs one for an empty "
     "title, after a point group other than C1 and after each inline basis",
     "blank lines of $DATA are left out or moved behind the atoms; GAMESS needs one for an empty "
     "title, after a point group other than C1 and after each inline basis"},
    {"line of $DATA that is no atom is moved behind the atoms",
     "lines of $DATA that are no atoms are moved behind the atoms"},
    {"number in front of an atom is left out", "numbers in front of atoms are left out"},
    {"text behind the coordinates of an atom is left out",
     "texts behind the coordinates of atoms are left out"},
    {"number of an atom is rounded", "numbers of atoms are rounded"},
    {"line becomes longer than 80 columns, where GAMESS cuts it",
     "lines become longer than 80 columns, where GAMESS cuts them"},
}};

}  // namespace

void LossCounts::add(Loss loss, std::size_t count) noexcept {
    counts_[static_cast<std::size_t>(loss)] += count;
}

std::vector<std::string> LossCounts::sentences() const {
    std::vector<std::string> sentences;
    for (std::size_t i = 0; i < counts_.size(); ++i) {
        if (counts_[i] == 0) continue;
        std::string sentence = std::to_string(counts_[i]) + ' ';
        sentence += counts_[i] == 1 ? sentence_table[i].one : sentence_table[i].many;
        sentences.push_back(std::move(sentence));
    }
    return sentences;
}

}  // namespace gms_inp
