#ifndef COMMAND_H
#define COMMAND_H

#include <PriorityList.h>

/** One thing that the command line asks for in the place of a window. */
struct Command {
    enum Kind {
        List,
        Check,
        Add,
        AddTop,
        Remove,
        Move,
        Undo,
        Redo,
        Export,
        Import,
        Status,
        Connect,
        Disconnect,
        Apply,
        Release,
        Agent
    };

    Kind kind = List;
    PriorityList entry; /**< What is added, removed, moved or connected. */
    int position = 0;   /**< Where Move moves it, counted from 1. */
    QString file;       /**< Of Export and Import. */

    bool Adds() const { return kind == Add || kind == AddTop; }
    bool IsOfHistory() const { return kind >= Remove && kind <= Import; }
    bool IsChange() const { return Adds() || (IsOfHistory() && kind != Export); }
    bool IsOfConnections() const { return kind == Status || Waits() || IsOfOrder(); }
    bool IsOfOrder() const { return kind == Apply || kind == Release; }
    bool TakesEntry() const { return Adds() || kind == Remove || kind == Move || kind == Connect; }
    bool TakesFile() const { return kind == Export || kind == Import; }
    bool Waits() const { return kind == Connect || kind == Disconnect; }
    bool CanAnswerInJson() const { return kind == List || kind == Check || kind == Status; }
};

#endif
