#pragma once

class QWidget;

// What the question view shows: the questions the user has put to the community in this
// session, and a line to ask another. A question is sent when the connector's service is
// reachable; until then it waits in the list.
class QuestionViewContent
{
public:
    static QWidget* create();
};
