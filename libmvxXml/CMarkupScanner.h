#ifndef MVXXML_CMARKUPSCANNER_H
#define MVXXML_CMARKUPSCANNER_H

#include "CXmlLimits.h"

#include <QString>
#include <QtGlobal>

#include <algorithm>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

/** A part of a text, by the numbers of its characters. */
struct SMarkupRange
{
    qsizetype begin = 0;
    qsizetype end = 0; ///< behind the last character
};

/** Takes nothing of what a CMarkupScanner finds: for one that only counts the limits. */
struct SMarkupIgnored
{
    static constexpr bool WANTS_ATTRIBUTES = false; ///< startTag() and attribute() are called for every tag
    void startTag(qsizetype /*begin*/, SMarkupRange /*name*/) {}
    void attribute(SMarkupRange /*name*/, SMarkupRange /*value*/) {}
    void startTagEnd(qsizetype /*attributesEnd*/, qsizetype /*end*/, bool /*isEmptyTag*/) {}
    void endTag(SMarkupRange /*tag*/) {}
    void comment(SMarkupRange /*comment*/) {}
};

/**
 * Finds the markup of an XML text, tag by tag, and counts what CXmlLimits limits before a parser sees it: parsers read
 * ahead, compare all attributes of an element with each other, and cannot all be stopped on the way.
 *
 * What it finds holds for a well-formed text. Of any other it only promises to come to an end; a parser then meets the
 * fault in front of everything that could have been miscounted.
 *
 * @tparam Character char for bytes in an encoding that contains ASCII, char16_t for characters
 * @tparam Visitor   is told what is found, in the order of the text, by the functions of SMarkupIgnored. The name of a
 *                   tag or attribute includes its prefix, the value of an attribute stands between its quotes, and
 *                   declarations of namespaces are counted, but are no attributes.
 */
template <typename Character, typename Visitor> class CMarkupScanner
{
public:
    /** A scanner of the characters from @p begin to in front of @p end, which have to outlive it, as the visitor does.
     */
    CMarkupScanner(const Character* begin, const Character* end, Visitor& visitor)
        : mVisitor(visitor)
        , mBegin(begin)
        , mEnd(end)
        , mNext(begin)
        , mMarkup(begin)
        , mDeclaration(begin)
    {}

    /** Scans the text. Returns false when it goes beyond a limit, where it then stops. */
    bool scan()
    {
        while (mRefusal.isEmpty()) {
            mNext = find(Character('<'));
            if (mNext == mEnd) {
                return true;
            }
            mMarkup = mNext++;
            if (startsWith("!--")) {
                mNext += 3;
                skipBehind("-->");
                mVisitor.comment(fromMarkup());
            } else if (startsWith("![CDATA[")) {
                skipBehind("]]>");
            } else if (startsWith("?")) {
                skipBehind("?>");
            } else if (startsWith("!")) {
                scanDeclaration();
            } else if (startsWith("/")) {
                skipBehind(">");
                mVisitor.endTag(fromMarkup());
                if (!mOpenElements.empty()) {
                    mOpenElements.pop_back();
                }
            } else {
                scanStartTag();
            }
        }
        return false;
    }

    /** Why the text is refused, translated; empty as long as it is not. */
    QString refusal() const { return mRefusal; }

    /** How much of the text lies in front of the markup that goes beyond the limit, in characters. */
    qsizetype sizeInFront() const { return mMarkup - mBegin; }

    /** Line at which the text is refused, from 1. */
    int line() const { return int(std::count(mBegin, mNext, Character('\n'))) + 1; }

    /** Column at which the text is refused: characters of the line in front of the place. */
    int column() const
    {
        const auto back =
            std::find(std::make_reverse_iterator(mNext), std::make_reverse_iterator(mBegin), Character('\n'));
        return int(mNext - back.base());
    }

private:
    void scanStartTag()
    {
        const Character* const nameBegin = mNext;
        const Character* attributesEnd = mNext;
        int attributes = 0;
        int namespaces = mOpenElements.empty() ? 0 : mOpenElements.back();
        if (Visitor::WANTS_ATTRIBUTES || !skipPlainTag()) {
            skipName();
            attributesEnd = mNext;
            mVisitor.startTag(mMarkup - mBegin, range(nameBegin, mNext));
            skipSpace();
            while (mNext != mEnd && !endsName(*mNext) && mRefusal.isEmpty()) {
                ++(scanAttribute() ? namespaces : attributes);
                attributesEnd = mNext;
                if (attributes > CXmlLimits::MAX_ATTRIBUTES) {
                    mRefusal = CXmlLimits::tooManyAttributes();
                } else if (namespaces > CXmlLimits::MAX_NAMESPACES) {
                    mRefusal = CXmlLimits::tooManyNamespaces();
                }
                skipSpace();
            }
            if (mRefusal.isEmpty()) {
                mNext = find(Character('>'));
            }
        }
        const bool isEmptyTag = mNext != mBegin && *(mNext - 1) == Character('/');
        mNext += mNext == mEnd ? 0 : 1;
        if (mRefusal.isEmpty() && mOpenElements.size() == std::size_t(CXmlLimits::MAX_DEPTH)) {
            mRefusal = CXmlLimits::tooDeep();
        } else if (!isEmptyTag) {
            mOpenElements.push_back(namespaces);
        }
        mVisitor.startTagEnd(attributesEnd - mBegin, mNext - mBegin, isEmptyTag);
    }

    // Goes to the end of a tag whose attributes can be counted by their quotes: all of them double, not too many, and
    // none of them a namespace declaration. Nearly all tags are like that, and looking at every character of the others
    // costs several times as much.
    bool skipPlainTag()
    {
        const Character* const end = find(Character('>'));
        if (mDeclaration < mNext) {
            static const std::basic_string<Character> declaration = {'x', 'm', 'l', 'n', 's'};
            const std::basic_string_view<Character> rest(mNext, std::size_t(mEnd - mNext));
            mDeclaration = mNext + std::min(rest.find(declaration), rest.size());
        }
        const qsizetype quotes = countOf(Character('"'), mNext, end);
        const bool hasOtherQuotes =
            std::char_traits<Character>::find(mNext, std::size_t(end - mNext), Character('\'')) != nullptr;
        if (quotes % 2 != 0 || quotes / 2 > CXmlLimits::MAX_ATTRIBUTES || hasOtherQuotes || mDeclaration < end) {
            return false;
        }
        mNext = end;
        return true;
    }

    // Returns true for a namespace declaration.
    bool scanAttribute()
    {
        const Character* const nameBegin = mNext;
        skipName();
        const Character* const nameEnd = mNext;
        skipSpace();
        mNext += mNext != mEnd && *mNext == Character('=') ? 1 : 0;
        skipSpace();
        const Character quote = mNext == mEnd ? Character() : *mNext;
        mNext += mNext == mEnd ? 0 : 1;
        const Character* const valueBegin = mNext;
        mNext = find(quote);
        const bool isNamespace = isDeclaration(nameBegin, nameEnd);
        if (!isNamespace) {
            mVisitor.attribute(range(nameBegin, nameEnd), range(valueBegin, mNext));
        }
        mNext += mNext == mEnd ? 0 : 1;
        return isNamespace;
    }

    // A document type declaration; an identifier in quotes may hold any character.
    void scanDeclaration()
    {
        while (mNext != mEnd && *mNext != Character('>')) {
            const Character character = *mNext++;
            if (character == Character('"') || character == Character('\'')) {
                mNext = find(character);
                mNext += mNext == mEnd ? 0 : 1;
            } else if (character == Character('[')) {
                mRefusal = CXmlLimits::internalSubset();
                return;
            }
        }
    }

    // The next place of a character, or the end. This search is the fastest that there is, and nearly all of a text is
    // searched.
    const Character* find(Character character) const
    {
        const Character* const found = std::char_traits<Character>::find(mNext, std::size_t(mEnd - mNext), character);
        return found == nullptr ? mEnd : found;
    }

    // How often a character stands in a range: counted in pieces whose sum fits into a byte, of which a processor adds
    // up many at once.
    static qsizetype countOf(Character character, const Character* begin, const Character* end)
    {
        qsizetype total = 0;
        while (begin != end) {
            const Character* const pieceEnd = begin + std::min<qsizetype>(end - begin, 255);
            unsigned char count = 0;
            for (; begin != pieceEnd; ++begin) {
                count = static_cast<unsigned char>(count + (*begin == character ? 1 : 0));
            }
            total += count;
        }
        return total;
    }

    static bool isSpace(Character character)
    {
        return character == Character(' ') || character == Character('\t') || character == Character('\n')
               || character == Character('\r');
    }

    static bool endsName(Character character)
    {
        return isSpace(character) || character == Character('=') || character == Character('/')
               || character == Character('>');
    }

    // True for "xmlns", and for a name that begins with "xmlns:".
    static bool isDeclaration(const Character* begin, const Character* end)
    {
        constexpr char declaration[] = "xmlns";
        const bool begins =
            end - begin >= 5 && std::equal(begin, begin + 5, declaration, [](Character left, char right) {
                return left == Character(right);
            });
        return begins && (end - begin == 5 || begin[5] == Character(':'));
    }

    bool startsWith(const char* text) const
    {
        const Character* next = mNext;
        for (; *text != '\0'; ++text, ++next) {
            if (next == mEnd || *next != Character(*text)) {
                return false;
            }
        }
        return true;
    }

    void skipBehind(const char* text)
    {
        mNext = find(Character(*text));
        while (mNext != mEnd && !startsWith(text)) {
            ++mNext;
            mNext = find(Character(*text));
        }
        for (; mNext != mEnd && *text != '\0'; ++text) {
            ++mNext;
        }
    }

    void skipSpace()
    {
        while (mNext != mEnd && isSpace(*mNext)) {
            ++mNext;
        }
    }

    void skipName()
    {
        while (mNext != mEnd && !endsName(*mNext)) {
            ++mNext;
        }
    }

    SMarkupRange range(const Character* begin, const Character* end) const { return {begin - mBegin, end - mBegin}; }

    SMarkupRange fromMarkup() const { return range(mMarkup, mNext); }

    Visitor& mVisitor;
    const Character* mBegin;
    const Character* mEnd;
    const Character* mNext;
    const Character* mMarkup;       // The "<" that was found last
    const Character* mDeclaration;  // The next "xmlns", as far as it was looked for
    QString mRefusal;               // Why the text is refused; empty as long as it is not
    std::vector<int> mOpenElements; // For each open element, the declarations in force inside it
};

#endif
