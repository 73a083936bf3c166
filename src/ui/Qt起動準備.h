#pragma once

class QApplication;
class QTranslator;

// What both programs set up on their application object before any window: the font of the
// suite's windows, and Japanese for Qt's own dialogues (print dialogue, file pickers, print
// preview). Answers the translator put in, owned by the application; none when the
// translations are not installed, and the dialogues then speak English.
QTranslator* Qt起動準備(QApplication& アプリ);
