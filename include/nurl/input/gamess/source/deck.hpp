/// @file
/// The text of a deck as GAMESS reads it, and changes of single bytes in it.
///
/// The document model (`GamessInput`) is for decks that are computed with: it holds what a deck
/// means and writes it in one canonical layout. A `source::Deck` is for decks that people wrote:
/// it holds the text itself, tells where everything stands, and changes a value without touching
/// another byte. The two read a deck differently where the reader is lenient and GAMESS is not.
/// Here the rules of GAMESS count.
///
/// Source of these rules: GAMESS manual, "Input Philosophy", and what decks in use show.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "nurl/input/gamess/export.hpp"
#include "nurl/input/gamess/model.hpp"

namespace nurl::input::gamess::source {

/// A stretch of a deck's text: the bytes from `begin` up to, not including, `end`.
struct Span {
    std::size_t begin = 0;  ///< offset of the first byte
    std::size_t end = 0;    ///< offset behind the last byte; never less than `begin`

    /// Number of bytes.
    [[nodiscard]] constexpr std::size_t size() const noexcept { return end - begin; }
    /// Whether there is no byte in it; it still has a place.
    [[nodiscard]] constexpr bool empty() const noexcept { return begin == end; }

    bool operator==(const Span&) const = default;
};

/// A place in a text as people count it. Lines end at LF, CR LF or a lone CR.
struct Position {
    std::size_t line = 1;    ///< counted from 1
    std::size_t column = 1;  ///< counted from 1, in bytes

    auto operator<=>(const Position&) const = default;
};

/// One replacement in a text. Several edits belong together in a list, sorted by place, whose
/// spans do not overlap.
struct Edit {
    Span span;         ///< the bytes that go; empty to insert
    std::string text;  ///< the bytes that come

    bool operator==(const Edit&) const = default;
};

/// How GAMESS reads the body of a group.
enum class GroupKind : std::int32_t {
    Keywords = 0,      ///< `KEY=value` text; also taken for groups that nobody knows
    Data = 1,          ///< `$DATA`: title, point group, atoms; free-format cards
    FreeFormat = 2,    ///< cards of words whose order counts, such as `$ECP`; also the groups that
                       ///< the deck names by `BASNAM` in `$BASIS` or `FRAGNAME` in `$EFRAG`
    FixedColumns = 3,  ///< lines whose columns count, as an earlier run punched them: `$VEC`
};

/// One group of a deck. The spans lie behind one another without gaps: header, body, terminator.
struct Group {
    std::string name;            ///< upper case, without the `$`
    std::size_t occurrence = 1;  ///< which of the groups of that name and visibility it is, from 1
    GroupKind kind = GroupKind::Keywords;  ///< how its body is read
    bool visible = true;   ///< GAMESS finds it: its `$` stands in column 2 and column 1 is a space
    std::size_t line = 1;  ///< line of the header, counted from 1
    std::size_t column = 1;  ///< column of its `$`, counted in bytes from 1
    Span header;             ///< the `$` and the name
    Span body;               ///< what stands between name and terminator
    Span terminator;         ///< the `$END`; empty when the group has none and ends at the next
                             ///< header or with the text

    bool operator==(const Group&) const = default;
};

/// What a piece of a group's body is.
enum class ItemKind : std::int32_t {
    Keyword = 0,    ///< a keyword and its value
    Comment = 1,    ///< from a `!` to the next one on its line, that one included, or to the end of
                    ///< the line
    Separator = 2,  ///< a comma between items, a `;` that ends a card, a `>` that joins two lines
    Text = 3,       ///< a word of a keyword group that belongs to no keyword
    Card = 4,       ///< a line of a group that has no keywords; may be blank
};

/// One piece of a group's body.
struct Item {
    ItemKind kind = ItemKind::Text;  ///< what it is
    Span span;          ///< all of it: a keyword with its value, a card over all lines it joins
    Position position;  ///< where `span` begins
    std::string key;    ///< the keyword in upper case with its index, `IZMAT(1)`; else empty
    Span value;         ///< from the first word of a keyword's value to its last, over all lines on
                        ///< which it goes on; empty for a keyword without value and other items
    std::vector<Span> words;  ///< the words of a keyword's value, or of a card that is not of fixed
                              ///< columns, in order; what lies between them is blanks, commas, line
                              ///< ends and comments

    bool operator==(const Item&) const = default;
};

/// The text of a deck with an index of its groups.
///
/// A group begins at a `$NAME` that is the first text of its line. GAMESS finds it only when the
/// `$` stands in column 2 (`$REKS` has a reader of its own and is found in any column); the others
/// are in the index, marked as not visible. A group named behind the `$END` of another on the same
/// line is indexed, not visible, when the schema knows its name. A group ends at the first `$END`
/// in any letter case that no open `!` hides, at the next visible header, or with the text. Lines
/// that begin with `$` inside `$VB2000` belong to it.
///
/// Reading and editing look at visible groups only, since the others do nothing. Names of groups
/// and keywords may be given in any case; blanks, tabs and line ends around them and one leading
/// `$` of a group name are dropped. `KEY` and `KEY(1)` are one keyword.
///
/// Every edit is the smallest change of bytes that does it, checks by reading back that it did,
/// and costs one pass over the text. When it throws, also for want of memory, the deck is as it
/// was; copying another deck over it keeps to that too. `const` members may be called concurrently;
/// a change needs exclusive access and invalidates references, views and spans.
///
///     source::Deck deck{" $CONTRL SCFTYP=RHF  MULT=1 $END  ! closed shell\n"};
///     deck.set_keyword("CONTRL", "SCFTYP", "UHF");
///     deck.text();  // " $CONTRL SCFTYP=UHF  MULT=1 $END  ! closed shell\n"
class Deck {
public:
    /// Takes a text over and indexes it. Any bytes will do; a text without groups has none.
    ///
    /// Linear in the length of the text, whatever is in it. The first deck of the process that has
    /// a group loads the schema. Throws only on memory exhaustion.
    NURL_GMS_INP_EXPORT explicit Deck(std::string text);

    /// Copies text and index.
    Deck(const Deck&) = default;
    /// Takes text and index over. The other deck may then be given a new value or be let go.
    Deck(Deck&&) noexcept = default;
    /// Replaces text and index together, so that neither is without the other when memory runs out.
    Deck& operator=(const Deck& other) { return *this = Deck{other}; }
    /// As the constructor that takes a deck over.
    Deck& operator=(Deck&&) noexcept = default;
    ~Deck() = default;

    /// The text as edited so far.
    [[nodiscard]] NURL_GMS_INP_EXPORT const std::string& text() const& noexcept;
    [[nodiscard]] const std::string& text() const&& = delete;

    /// The bytes of a span of this deck's text. Valid until the next edit.
    [[nodiscard]] NURL_GMS_INP_EXPORT std::string_view text(Span span) const& noexcept;
    [[nodiscard]] std::string_view text(Span span) const&& = delete;

    /// All groups in the order of the text, those that GAMESS does not see included.
    [[nodiscard]] NURL_GMS_INP_EXPORT std::span<const Group> sections() const& noexcept;
    [[nodiscard]] std::span<const Group> sections() const&& = delete;

    /// The visible groups of a name, in the order of the text; empty when there is none.
    [[nodiscard]] NURL_GMS_INP_EXPORT std::vector<Group> find_all(std::string_view name) const;

    /// Takes the body of a group apart.
    ///
    /// A keyword group is cut into keywords, comments, separators and words that belong to none: a
    /// keyword is a word that begins with a letter and has a `=` behind it on its line, its value
    /// all words up to the next keyword. In `$DATA` and free-format groups each card is an item; a
    /// `;` ends a card within its line, a `>` at the end of a line joins the next one, a `!` begins
    /// a comment. Title lines and fixed columns are cards as they stand.
    ///
    /// @param group  one of `sections()` or `find_all`
    /// @return the items in ascending order. A comment inside a value or a card comes behind it.
    ///
    /// Linear in the length of the body. Holds no more than 700 bytes of memory for each byte of
    /// it, since an item can be about one.
    [[nodiscard]] NURL_GMS_INP_EXPORT std::vector<Item> items(const Group& group) const;

    /// The text of a value without its layout: as written, where it stands on one line; line ends
    /// and comments between two words become a comma when there is one, otherwise a space.
    ///
    /// @param item  a keyword of `items`
    [[nodiscard]] NURL_GMS_INP_EXPORT std::string value_of(const Item& item) const;

    /// The value that counts for GAMESS: the last one in all copies of the group.
    ///
    /// @return nothing when no visible group has the keyword, for `$DATA`, and for groups without
    ///         keywords; otherwise as `value_of`
    [[nodiscard]] NURL_GMS_INP_EXPORT std::optional<std::string> get_keyword(
        std::string_view section, std::string_view key) const;

    /// The keywords of a group over all its copies, each once, at its first place and with the
    /// value that counts. The keys are upper case with the index as first written.
    [[nodiscard]] NURL_GMS_INP_EXPORT std::vector<KeyValue> list_keywords(
        std::string_view section) const;

    /// Line and column of a byte; of the end for an offset beyond it. Linear in the distance to
    /// the last group header before it.
    [[nodiscard]] NURL_GMS_INP_EXPORT Position location(std::size_t offset) const noexcept;

    /// Where the first visible group of a name begins; nothing when there is none.
    [[nodiscard]] NURL_GMS_INP_EXPORT std::optional<Position> location(
        std::string_view section) const;

    /// Where the keyword whose value counts stands; nothing when there is none.
    [[nodiscard]] NURL_GMS_INP_EXPORT std::optional<Position> location(std::string_view section,
                                                                       std::string_view key) const;

    /// Sets a keyword, where the value that counts stands.
    ///
    /// Words that stay the same keep their bytes and their layout; a value that is set already
    /// changes nothing. A keyword that is not there is added to the last copy of its group, which
    /// is made when needed, as `ensure_section` does: behind the last keyword, or on a line of its
    /// own where the keywords stand so or the line would pass 80 columns. A line that only the new
    /// value makes longer than 80 columns is folded as `wrap` folds it.
    ///
    /// @param value  blanks around it are dropped; kept in its case
    /// @throws std::runtime_error "Section name and keyword must be non-empty" when either is
    ///         blank; "$VEC does not support key=value editing", with the name of the group, for
    ///         `$DATA` and every other group without keywords; "Value cannot be read back: " and
    ///         the value when it is blank, holds a `$`, `=`, `!` or line end, or for another reason
    ///         would not be read as it is; "Keyword cannot be read back: " or "Section cannot be
    ///         read back: " and the name when it is no word; "Section is not closed by $END: " and
    ///         the name when a keyword is to be added there
    NURL_GMS_INP_EXPORT void set_keyword(std::string_view section, std::string_view key,
                                         std::string_view value);

    /// Sets a keyword that is not there yet, or any keyword when `replace` is true.
    ///
    /// @return false, with the text unchanged, when the keyword is there and `replace` is false
    /// @throws as `set_keyword`
    NURL_GMS_INP_EXPORT bool add_keyword(std::string_view section, std::string_view key,
                                         std::string_view value, bool replace);

    /// Removes a keyword from all copies of its group, with the blanks and the comma in front of
    /// it; lines that held nothing else go as a whole. Comments inside its value stay.
    ///
    /// @return true when something was removed; false for blank names and for groups without
    ///         keywords
    /// @throws std::runtime_error "Keyword cannot be removed by itself: " and the name when what
    ///         follows it, such as a stray `=`, would then be read with another keyword
    NURL_GMS_INP_EXPORT bool remove_keyword(std::string_view section, std::string_view key);

    /// Makes sure that the deck has a group. A new one is empty, stands on lines of its own in
    /// front of the first `$DATA`, or at the end when there is none, and follows the line ends and
    /// the letter case of the headers around it. A blank name and `DATA` change nothing.
    ///
    /// @throws std::runtime_error "Section cannot be read back: " and the name when it is no word;
    ///         "Section is not closed by $END: " and the name of the group in front of the place,
    ///         of which a new group would be read as a part
    NURL_GMS_INP_EXPORT void ensure_section(std::string_view name);

    /// Removes all visible copies of a group, each with its whole lines where nothing else stands
    /// on them.
    ///
    /// @return true when the deck had the group
    NURL_GMS_INP_EXPORT bool remove_section(std::string_view name);

    /// Replaces one group by the text of another.
    ///
    /// @param occurrence  which visible group of that name, counted from 1
    /// @param text        the new group, from the `$` of its header or the space before it, to its
    ///                    `$END`; blank lines and line ends around it are dropped
    /// @throws std::runtime_error "No such section: " and the name when there are fewer copies;
    ///         "Section cannot be read back: " and the name when `text` is not one whole visible
    ///         group of that name
    NURL_GMS_INP_EXPORT void replace_section(std::string_view name, std::size_t occurrence,
                                             std::string_view text);

    /// Applies a list of edits to the text.
    ///
    /// @param edits  sorted by place, not overlapping, within the text
    /// @throws std::runtime_error "Edits overlap or lie outside the text"
    NURL_GMS_INP_EXPORT void apply(std::span<const Edit> edits);

private:
    std::string text_;
    std::vector<Group> groups_;
};

}  // namespace nurl::input::gamess::source
