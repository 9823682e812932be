#ifndef COMMAND_H
#define COMMAND_H

#include <PriorityList.h>

/** One thing that the command line asks for in the place of a window. */
struct Command {
    enum Kind { List, Check, Add, AddTop, Status, Connect, Disconnect, Apply, Release, Agent };

    Kind kind = List;
    PriorityList entry; /**< What Add and AddTop add, and what Connect connects. */

    bool IsChange() const { return kind == Add || kind == AddTop; }
    bool IsOfConnections() const { return kind == Status || Waits() || IsOfOrder(); }
    bool IsOfOrder() const { return kind == Apply || kind == Release; }
    bool TakesEntry() const { return IsChange() || kind == Connect; }
    bool Waits() const { return kind == Connect || kind == Disconnect; }
    bool CanAnswerInJson() const { return kind == List || kind == Check || kind == Status; }
};

#endif
