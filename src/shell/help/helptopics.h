// What the help tells of this program. The texts stand in topics.txt, which is part of the program;
// what they say of the course is made from the course.
#pragma once

#include "kit/help.h"

class ContentLibrary;

namespace HVHelp {

/// The nineteen topics in the order of the menu, in the words of this platform. The first form
/// tells of the course of this process, which it reads if nobody has yet.
[[nodiscard]] QList<CRVNHelpTopic> topics();
[[nodiscard]] QList<CRVNHelpTopic> topics(const ContentLibrary &course);

/// The text of the topic "credits": who made what, and every source that the course names.
[[nodiscard]] QString creditsBody(const ContentLibrary &course);

} // namespace HVHelp
