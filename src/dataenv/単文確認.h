#pragma once

#include <QString>

#include "dataenv/SQL方言変換.h"

// How far a statement text is one statement for the engine of the dialect. Statements are
// composed as text and some take stored free texts as they stand, so a text that goes on after
// its statement's end must not reach an engine that would run the rest.
struct 単文判定 {
    qsizetype 長さ = 0;   // the statement without its closing ";" and the blanks behind it
    qsizetype 余り = -1;  // -1: nothing runs after it; else where the text goes on past its end
                          // or a form begins that the engines read differently
    bool 単文() const { return 余り < 0; }
};

単文判定 単文確認(const QString& 文, SQL方言 方言);
