// The second line of a clipping, in the languages of its readers.
#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "cases.h"
#include "client/sources/clippings/clipping.h"
#include "client/sources/clippings/date.h"
#include "client/text/case_folding.h"
#include "client/text/iso_time.h"

namespace {

std::string shown(const char* unit, const std::optional<client::ClippingRange>& range) {
    if (!range) {
        return {};
    }
    const std::string end = '-' + std::to_string(range->last);
    return unit + std::to_string(range->first) + (range->first == range->last ? "" : end);
}

std::string shownDetails(const std::string& line) {
    constexpr const char* kKinds[] = {"highlight", "note", "bookmark", "article"};
    const auto clipping = client::parseDetails(line);
    if (!clipping) {
        return "refused";
    }
    return (clipping->kind ? kKinds[static_cast<int>(*clipping->kind)] : "unknown") +
           shown(" p", clipping->page) + shown(" l", clipping->location) +
           (clipping->note.time == 0 ? "" : ' ' + client::isoTime(clipping->note.time));
}

TEST(ClippingDetails, AreReadInEveryLanguage) {
    const Case cases[] = {
        {"- Your Highlight on page 12 | Location 170-171 | Added on June 10, 2012 1:22 PM",
         "highlight p12 l170-171 2012-06-10T13:22:00Z"},
        {"- Your Note on page 12 | location 171", "note p12 l171"},
        {"- Your Highlight on page 12-13 | Added on Sunday, 10 June 2012",
         "highlight p12-13 2012-06-10T00:00:00Z"},
        {"- Your Bookmark on page xii | Location 24", "bookmark l24"},
        {"- Your Highlight at location 1-2", "highlight l1-2"},
        {"- Highlight Loc. 2170-71  ", "highlight l2170-2171"},
        {"- Your Highlight at location 199-03", "highlight l199"},
        {"- Clip This Article at Location 5", "article l5"},
        {"- Ihre Markierung auf Seite 12 | Position 170-171", "highlight p12 l170-171"},
        {"- Deine Notiz bei Position 171", "note l171"},
        {"- Ihr Lesezeichen auf Seite 12", "bookmark p12"},
        {"- Votre surlignement sur la page 12 | emplacement 170-171",
         "highlight p12 l170-171"},
        {"- Votre note à l'emplacement 171", "note l171"},
        {"- Votre signet sur la page 12", "bookmark p12"},
        {"- La subrayado en la página 12 | posición 170-171", "highlight p12 l170-171"},
        {"- Mi marcador Ubicación 170", "bookmark l170"},
        {"- Seu destaque ou posição 170-171", "highlight l170-171"},
        {"- Sua nota na página 12 | posição 171", "note p12 l171"},
        {"- La tua evidenziazione a pagina 12 | posizione 170-171",
         "highlight p12 l170-171"},
        {"- Il tuo segnalibro a pagina 12", "bookmark p12"},
        {"- Uw markering op pagina 12 | locatie 170-171", "highlight p12 l170-171"},
        {"- Je notitie op locatie 171", "note l171"},
        {"- Je bladwijzer op pagina 12", "bookmark p12"},
        {"- Ваш выделенный отрывок на странице 12 | Место 170–171",
         "highlight p12 l170-171"},
        {"- Ваша заметка в месте 640", "note l640"},
        {"- Ваша закладка на странице 12", "bookmark p12"},
        {"- 您在第 12 页（位置 #170-171）的标注", "highlight p12 l170-171"},
        {"- 您在位置 #171 的笔记 | 添加于 2012年6月10日星期日 上午12:22:37",
         "note l171 2012-06-10T00:22:37Z"},
        {"- 您在第 12 页的书签", "bookmark p12"},
        {"- 您在第 12 頁（位置 #170）的標註", "highlight p12 l170"},
        {"- １２ページ|位置No. 170-171のハイライト |作成日: 2012年6月10日日曜日 22:22:37",
         "highlight p12 l170-171 2012-06-10T22:22:37Z"},
        {"- 位置No. 171のメモ", "note l171"},
        {"- 12ページのブックマーク", "bookmark p12"},
        {"- Korostus sivulla 9 | sijainti 90-95 | Lisätty 10. kesäkuuta 2012 22.22.37",
         "unknown p9 l90-95"},
        {"- Korostus sijainti 90—95", "unknown l90-95"},
        {"– Ваша заметка в месте 640 | Добавлено: понедельник, 16 марта 2015 г. в 21:46:06",
         "note l640 2015-03-16T21:46:06Z"},
        {"— Your Note on page 12", "note p12"},
        {"\x96 Su nota en la p\xE1gina 12", "note p12"},
        {"- Markierung bei Position 170-171", "highlight l170-171"},
        {"- 5페이지의 하이라이트 | 위치 170-171 | 추가됨: 2019년 1월 28일 월요일 오후 "
         "9:27:44",
         "highlight p5 l170-171 2019-01-28T21:27:44Z"},
        {"- Your Highlight on page 1,234-1,240", "highlight p1234-1240"},
        {"- Ihre Markierung auf Seite 1.234 | Position 12.345.678",
         "highlight p1234 l12345678"},
        {"-", "unknown"},
        {"Your Highlight on page 12", "refused"},
        {"", "refused"},
    };
    expectEach(cases, shownDetails);
}

std::string shownDate(const std::string& text) {
    const auto time = client::parseClippingDate(client::caseFoldedNfkc(text));
    return time ? client::isoTime(*time) : "none";
}

TEST(ClippingDate, IsReadWithClockOfEitherKind) {
    const Case cases[] = {
        {"Sunday, June 10, 2012 12:05:00 AM", "2012-06-10T00:05:00Z"},
        {"Sunday, June 10, 2012 12:05:00 PM", "2012-06-10T12:05:00Z"},
        {"Sunday, June 10, 2012 1:05 PM", "2012-06-10T13:05:00Z"},
        {"Sunday, 10 June 2012 13:05:09 PM", "2012-06-10T13:05:09Z"},
        {"Montag, 25. September 2023 22:42:15", "2023-09-25T22:42:15Z"},
        {"vendredi 1 août 2025 08:00:00", "2025-08-01T08:00:00Z"},
        {"domingo, 10 de junio de 2012 1:05:09 p. m.", "2012-06-10T13:05:09Z"},
        {"domingo, 10 de junio de 2012 12:05:09 a.m.", "2012-06-10T00:05:09Z"},
        {"sábado, 1 de dezembro de 2012 22:22:37", "2012-12-01T22:22:37Z"},
        {"domenica 10 luglio 2012 22:22:37", "2012-07-10T22:22:37Z"},
        {"zondag 10 maart 2012 22:22:37", "2012-03-10T22:22:37Z"},
        {"понедельник, 16 марта 2015 г. в 21:46:06", "2015-03-16T21:46:06Z"},
        {"2012年6月10日 下午12:05:00", "2012-06-10T12:05:00Z"},
        {"2012年12月1日 午前11:05:00", "2012-12-01T11:05:00Z"},
        {"29 February 2024", "2024-02-29T00:00:00Z"},
        {"29 February 2000", "2000-02-29T00:00:00Z"},
    };
    expectEach(cases, shownDate);
    for (const char* text :
         {"29 february 2023", "29 february 1900", "31 february 2012", "0 june 2012",
          "june 2012", "10 june", "10 kesäkuuta 2012", "2012年13月1日", "page 12", ""}) {
        EXPECT_EQ(shownDate(text), "none") << text;
    }
}

}  // namespace
