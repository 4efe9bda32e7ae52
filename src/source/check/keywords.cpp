#include "source/check/keywords.hpp"

#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>

#include "model/text_view.hpp"
#include "reader/pair_scanner.hpp"
#include "source/check/near_name.hpp"
#include "source/check/quote.hpp"
#include "source/keyword_lookup.hpp"
#include "validation/messages.hpp"

namespace nurl::input::gamess::source::checks {

namespace {

/// The keywords that each group lists, gathered when first needed.
class KnownKeywords {
public:
    const NearNames& of(const schema::SectionSpec& spec) {
        const auto hit = names_.find(&spec);
        if (hit != names_.end()) return hit->second;
        std::vector<std::string> names;
        for (const auto& [name, entry] : spec.entries) names.push_back(name);
        return names_.try_emplace(&spec, names).first->second;
    }

private:
    std::unordered_map<const schema::SectionSpec*, NearNames> names_;
};

/// A keyword of a deck, whatever copy of its group it stands in.
std::string full_name(const KeywordUse& use) {
    return use.group->group->name + '.' + asked_key(use.item->key);
}

Span key_span(const Item& keyword) noexcept {
    return {keyword.span.begin, keyword.span.begin + keyword.key.size()};
}

/// The run of stray words on one line that begins with an item. @return its end among the items
std::size_t end_of_stray_line(const std::vector<Item>& items, std::size_t first) noexcept {
    std::size_t end = first + 1;
    while (end < items.size() && items[end].kind == ItemKind::Text &&
           items[end].position.line == items[first].position.line)
        ++end;
    return end;
}

void check_comment(const Deck& deck, const KeywordGroup& group, Span comment, Findings& findings) {
    detail::PairScanner scanner(deck.text(comment));
    while (const auto pair = scanner.next()) {
        const Span span{comment.begin + pair->begin, comment.begin + pair->end};
        findings.add(span, "Reading the deck as a document turns " + shortened(pair->key) +
                               " of $" + shortened(group.group->name) +
                               " on, which stands in a comment");
    }
}

}  // namespace

void find_unknown_keyword(const Context& context, Findings& findings) {
    KnownKeywords known;
    for_each_keyword(context, [&](const KeywordUse& use) {
        if (use.entry != nullptr) return;
        const std::string& key = use.item->key;
        findings.add(key_span(*use.item),
                     validation::unknown_keyword_message(use.group->group->name, key),
                     known.of(*use.group->spec).question(detail::without_index(key)));
    });
}

void find_repeated_keyword(const Context& context, Findings& findings) {
    std::unordered_map<std::string, const Item*> last;
    for_each_keyword(context, [&last](const KeywordUse& use) { last[full_name(use)] = use.item; });
    for_each_keyword(context, [&](const KeywordUse& use) {
        const Item* const counts = last.at(full_name(use));
        if (use.entry == nullptr || counts == use.item) return;
        findings.add(use.item->span, shortened(use.item->key) + " of $" + use.group->group->name +
                                         " is given again in line " +
                                         std::to_string(counts->position.line) +
                                         ", and that value counts");
    });
}

void find_stray_text(const Context& context, Findings& findings) {
    for (const KeywordGroup& group : context.keyword_groups()) {
        if (group.spec == nullptr || group.spec->parse_mode != schema::SectionParseMode::Structured)
            continue;
        for (std::size_t i = 0; i < group.items.size(); ++i) {
            if (group.items[i].kind != ItemKind::Text) continue;
            const std::size_t end = end_of_stray_line(group.items, i);
            findings.add({group.items[i].span.begin, group.items[end - 1].span.end},
                         validation::raw_text_message(group.group->name));
            i = end - 1;
        }
    }
}

void find_commented_keyword(const Context& context, Findings& findings) {
    for (const KeywordGroup& group : context.keyword_groups())
        for (const Item& item : group.items)
            if (item.kind == ItemKind::Comment)
                check_comment(context.deck(), group, item.span, findings);
}

}  // namespace nurl::input::gamess::source::checks
