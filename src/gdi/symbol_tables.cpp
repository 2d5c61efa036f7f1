#include "gdi/symbol_tables.h"

#include <algorithm>

namespace kelvane {
namespace {

/// @param characters  for all codes, and the zero that ends a literal.
constexpr SymbolEncoding EncodingOf(const char32_t (&characters)[kSymbolCodes + 1]) {
  SymbolEncoding encoding{};
  std::copy_n(characters, kSymbolCodes, encoding.characters.begin());
  return encoding;
}

}  // namespace

// J is the second theta, V the sigma at the end of words, j the second phi, v the second pi. The
// shafts of arrows (BD, BE) are drawings of boxes: few fonts have the characters made for them.
// What makers sign with is there twice: D2 to D4 with serifs, E2 to E4 without.
constinit const SymbolEncoding kSymbol = EncodingOf(
    U" !∀#∃%&∋()∗+,−./"                  // 20
    U"0123456789:;<=>?"                  // 30
    U"≅ΑΒΧΔΕΦΓΗΙϑΚΛΜΝΟ"                  // 40
    U"ΠΘΡΣΤΥςΩΞΨΖ[∴]⊥_"                  // 50
    U"‾αβχδεφγηιϕκλμνο"                  // 60
    U"πθρστυϖωξψζ{|}∼\0"                 // 70
    U"\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0"  // 80
    U"\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0"  // 90
    U"€ϒ′≤⁄∞ƒ♣♦♥♠↔←↑→↓"                  // A0
    U"°±″≥×∝∂•÷≠≡≈…│─↵"                  // B0
    U"ℵℑℜ℘⊗⊕∅∩∪⊃⊇⊄⊂⊆∈∉"                  // C0
    U"∠∇®©™∏√⋅¬∧∨⇔⇐⇑⇒⇓"                  // D0
    U"◊⟨®©™∑⎛⎜⎝⎡⎢⎣⎧⎨⎩⎪"                  // E0
    U"\0⟩∫⌠⎮⌡⎞⎟⎠⎤⎥⎦⎫⎬⎭\0");              // F0

// Not all of the font: what its other codes show is not known for sure. Braces that lie on their
// side have characters only as a whole: for the pieces that they are made of (31 to 38) and for the
// shafts of arrows (75) stand drawings of boxes, which look like them.
constinit const SymbolEncoding kMTExtra = EncodingOf(
    U" \0\0\0ˆ˜˙\0\0\0\0\0\0\0\0\0"        // 20
    U"\0╰┬╯─\0╭┴╮\0\0\0\0\0\0\0"           // 30
    U"\0\0\0∐\0\0\0\0\0⋂\0…⋯⋮⋰⋱"           // 40
    U"\0\0\0\0\0⋃\0\0\0\0\0\0\0\0\0\0"     // 50
    U"\0\0\0\0\0\0≻\0ℏ\0\0\0ℓ∓\0∘"         // 60
    U"≺\0→←\0─\0\0\0\0\0\0\0\0\0\0"        // 70
    U"\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0"    // 80
    U"\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0"    // 90
    U"\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0"    // A0
    U"\0\0\0\0\0ˆˆˆ\0\0\0⌢⌢\0\0\0"         // B0
    U"\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0"    // C0
    U"\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0"    // D0
    U"\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0"    // E0
    U"\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0");  // F0

constinit const SymbolEncoding kDingbats = EncodingOf(
    U" ✁✂✃✄☎✆✇✈✉☛☞✌✍✎✏"                  // 20
    U"✐✑✒✓✔✕✖✗✘✙✚✛✜✝✞✟"                  // 30
    U"✠✡✢✣✤✥✦✧★✩✪✫✬✭✮✯"                  // 40
    U"✰✱✲✳✴✵✶✷✸✹✺✻✼✽✾✿"                  // 50
    U"❀❁❂❃❄❅❆❇❈❉❊❋●❍■❏"                  // 60
    U"❐❑❒▲▼◆❖◗❘❙❚❛❜❝❞\0"                 // 70
    U"❨❩❪❫❬❭❮❯❰❱❲❳❴❵\0\0"                // 80
    U"\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0"  // 90
    U"\0❡❢❣❤❥❦❧♣♦♥♠①②③④"                 // A0
    U"⑤⑥⑦⑧⑨⑩❶❷❸❹❺❻❼❽❾❿"                  // B0
    U"➀➁➂➃➄➅➆➇➈➉➊➋➌➍➎➏"                  // C0
    U"➐➑➒➓➔→↔↕➘➙➚➛➜➝➞➟"                  // D0
    U"➠➡➢➣➤➥➦➧➨➩➪➫➬➭➮➯"                  // E0
    U"\0➱➲➳➴➵➶➷➸➹➺➻➼➽➾\0");              // F0

constinit const SymbolEncoding kWingdings = EncodingOf(
    U" 🖉✂✁👓🕭🕮🕯☎✆✉🖃📪📫📬📭"       // 20
    U"🗀🗁🗎🗏🗐🗄⌛🖮🖰🖲🖳🖴🖫🖬✇✍"  // 30
    U"🖎✌🖏👍👎☜☞☝☟🖐☺😐☹💣☠⚐"        // 40
    U"🏱✈☼🌢❄🕆✞🕈✠✡☪☯🕉☸♈♉"          // 50
    U"♊♋♌♍♎♏♐♑♒♓&&●❍■□"                                               // 60
    U"□❑❒⧫⧫◆❖◆⌧⮹⌘❀✿❝❞\0"                // 70
    U"⓪➀➁➂➃➄➅➆➇➈➉⓿➊➋➌➍"                                               // 80
    U"➎➏➐➑➒➓🙢🙠🙡🙣🙞🙜🙝🙟∙•"       // 90
    U"▪○○○◉◎🔿▪◻🟁✦★✶✴✹✵"             // A0
    U"⯐⌖⟡⌑⯑✪✰🕐🕑🕒🕓🕔🕕🕖🕗🕘"      // B0
    U"🕙🕚🕛⮰⮱⮲⮳⮴⮵⮶⮷🙪🙫🙕🙔🙗"       // C0
    U"🙖🙐🙑🙒🙓⌫⌦⮘➢⮙⮛⮈➲⮉⮋←"          // D0
    U"→↑↓↖↗↙↘⬅➔⬆⬇⬉⬈⬋⬊⇦"                                               // E0
    U"⇨⇧⇩⬄⇳⬁⬀⬃⬂▭▭✘✔☒☑\0");                                            // F0

constinit const SymbolEncoding kWingdings2 = EncodingOf(
    U" 🖊🖋🖌🖍✄✀☏🕽🗅🗆🗇🗈🗉🗊🗋"      // 20
    U"🗌🗍📋🗑🗔🖵🖶🖷🖸🖭🖯🖱🖒🖓☜☞"  // 30
    U"☚☛👈👉🖜🖝☝☟🖠🖡👆👇🖢🖣🖑✗"     // 40
    U"✓☒☑☒☒⊗⊗🛇⦸&&&&‽‽‽"                       // 50
    U"‽🙦🙤🙥🙧🙚🙘🙙🙛⓪①②③④⑤⑥"        // 60
    U"⑦⑧⑨⑩⓿❶❷❸❹❺❻❼❽❾❿\0"                                               // 70
    U"☉🌕☽☾⸿✝✝🕜🕝🕞🕟🕠🕡🕢🕣🕤"      // 80
    U"🕥🕦🕧🙨🙩⋅•⚫●○○○○⊙◉▪"           // 90
    U"▪◾■□□□□▣▣▣🞖◆◆◆◆◇"               // A0
    U"◈◈◈🞜⧫⧫⧫⧫◊🞠◖◗⯊⯋■◆"              // B0
    U"⬟⯂⬣⬢⯃⯄+++✚✚✚✚✕✕✕"                      // C0
    U"✖✖✖✖🞯🞰🞱🞲🞳🞴✱✱✱✱✱✱"          // D0
    U"✳✳✳✳✳🟀🟂✦✦★★✶✶✴✴✹"              // E0
    U"✹🟃🟇✯🟍🟔✦⯍※⁂\0\0\0\0\0\0");                // F0

// Most arrows come in eights or fours: left, right, up, down and then to the corners.
constinit const SymbolEncoding kWingdings3 = EncodingOf(
    U" ←→↑↓↖↗↙↘⇤⇥⤒⤓⭶⭸⇞"              // 20
    U"⇟↔↕⇠⇢⇡⇣↯↲↳↰↱⮤⮥⮦↴"            // 30
    U"⮐⮑⮒⮓⇆⇵↹⭿⇇⇉⇈⇊⮏⮍⮎⮌"            // 40
    U"↻↺⎋⌤⌃⌥␣⍽⇪⮸🢠🢡🢢🢣🢤➩"       // 50
    U"🢦➪🢨➫🢪➬←→↑↓↖↗↙↘↔↕"         // 60
    U"▲▼△▽◀▶◁▷◣◢◤◥◀▶▲\0"                                           // 70
    U"▼▲▼◀▶⮜➤⮝⮟←→↑↓←→↑"            // 80
    U"↓⬅➡⬆⬇⬅➡⬆⬇←→↑↓←→↑"                                            // 90
    U"↓←→↑↓←→←→⬅➡⬅🢜🢝🢞🢟"        // A0
    U"➡⬅➡🠴🠶🠸🠺🠹🠻🢘🢚🢙🢛⬅➡⬆"  // B0
    U"⬇⬅➡⬆⬇⬅➡⬆⬇⮨➥⮪➦⮬⮭⮮"            // C0
    U"⮯←→↑↓↖↗↙↘←→↑↓↖↗↙"            // D0
    U"↘⬅➔⬆⬇⬉⬈⬋⬊🢐🢒🢑🢓🢔🢖🢕"     // E0
    U"🢗\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0");                        // F0

constinit const SymbolEncoding kWebdings = EncodingOf(
    U" 🕷🕸🕲🕶🏆🎖🖇🗨🗩🗰🗱🌶🎗🙾/"          // 20
    U"🗕🗖🗗◀▶▲▼⏪⏩⏮⏭⏸■●🗚🗳"               // 30
    U"🛠🏗🏘🏙🏚🏜🏭🏛🏠🏖🏝🛣🔍🏔👁👂"    // 40
    U"🏞🏕🛤🏟🛳🕬🕫🕨🔈🎔🎕🗬\\🗭🗪🗫"      // 50
    U"⮔✔🚲□🛡📦🛱■🚑🛈🛩🛰🟈🕴⬤🛥"         // 60
    U"🚔🗘✕?🛲🚇🚍⛳⦸⊖🚭🗮|🗯🗲\0"                // 70
    U"🚹🚺🛉🛊🚼👽🏋⛷🏂🏌🏊🏄🏍🏎🚘🗠"     // 80
    U"🛢💰🏷💳👪🗡🗢🗣✯🖄🖅🖃🖆🖹🖺🖻"     // 90
    U"🕵🕰🖽🖾📋🗒🗓🕮📚🗞🗟🗃🗂🖼🎭🎜"    // A0
    U"🎘🎙🎧💿🎞📷🎟🎬📽📹📾📻🎚🎛📺💻"    // B0
    U"🖥🖦🖧🕹🎮🕻🕼📟🖁🖀🖨🖩🖿🖪🗜🔒"    // C0
    U"🔓🗝📥📤🕳🌣🌤🌥🌦☁🌨🌧🌩🌪🌬🌫"     // D0
    U"🌜🌡🛋🛏🍽🍸🛎🛍Ⓟ♿🛆🖈🎓🗤🗥🗦"      // E0
    U"🗧🛪🐿🐦🐟🐕🐈🙬🙮🙭🙯🗺🌍🌏🌎🕊");  // F0

}  // namespace kelvane
