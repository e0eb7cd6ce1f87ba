// The words of clippings files in many languages, folded by caseFoldedNfkc. Of a word with
// several endings, only the start is listed.
#pragma once

#include <array>
#include <string_view>

namespace client {

namespace clipping_words {

inline constexpr std::array<std::string_view, 12> kHighlight = {
    "highlight", "markierung", "surlign", "subrayado", "destaque",   "evidenziazion",
    "markering", "выделен",    "标注",    "標註",      "ハイライト", "하이라이트"};
inline constexpr std::array<std::string_view, 11> kBookmark = {
    "bookmark", "lesezeichen", "signet", "marcador",     "segnalibro", "bladwijzer",
    "закладк",  "书签",        "書籤",   "ブックマーク", "북마크"};
inline constexpr std::array<std::string_view, 2> kArticle = {"clip this article",
                                                             "article clip"};
inline constexpr std::array<std::string_view, 9> kNote = {
    "note", "notiz", "nota", "notitie", "заметк", "笔记", "筆記", "メモ", "메모"};

inline constexpr std::array<std::string_view, 5> kBeforePage = {"page", "seite", "página",
                                                                "pagina", "страниц"};
inline constexpr std::array<std::string_view, 4> kAfterPage = {"ページ", "页", "頁",
                                                               "페이지"};
inline constexpr std::array<std::string_view, 7> kBeforeLocation = {
    "loc", "posi", "ubicaci", "emplacement", "мест", "位置", "위치"};

inline constexpr std::string_view kAfterKoreanMonth = "월";
inline constexpr std::array<std::string_view, 2> kAfterMonth = {"月", kAfterKoreanMonth};

// After the time.
inline constexpr std::array<std::string_view, 3> kPm = {"pm", "p.m", "p. m"};
inline constexpr std::array<std::string_view, 3> kAm = {"am", "a.m", "a. m"};

// Anywhere.
inline constexpr std::array<std::string_view, 3> kAfternoon = {"下午", "午後", "오후"};
inline constexpr std::array<std::string_view, 3> kMorning = {"上午", "午前", "오전"};

inline constexpr std::array<std::string_view, 12> kMonths = {
    "january jan januar janvier enero janeiro gennaio januari января январь",
    "february feb februar février febrero fevereiro febbraio februari февраля февраль",
    "march mar märz mars marzo março maart марта март",
    "april apr avril abril aprile апреля апрель",
    "may mai mayo maio maggio mei мая май",
    "june jun juni juin junio junho giugno июня июнь",
    "july jul juli juillet julio julho luglio июля июль",
    "august aug août agosto augustus августа август",
    "september sep sept septembre septiembre setiembre setembro settembre сентября "
    "сентябрь",
    "october oct oktober octobre octubre outubro ottobre октября октябрь",
    "november nov novembre noviembre novembro ноября ноябрь",
    "december dec dezember décembre diciembre dezembro dicembre декабря декабрь"};

}  // namespace clipping_words

}  // namespace client
