#pragma once

#include <QStringList>

/// The languages in which the user wants messages, best first, under ICU's names: those of LANGUAGE
/// or, where it is not set, that of the locale of messages. None for the neutral locale, whose
/// messages are the program's own, whatever LANGUAGE says.
QStringList languagesOfMessages();

/// Has the application speak the user's best language for which there is a catalogue, and so Qt,
/// for its own panels. Without one, texts stay as the program has them.
void installTranslations();
