#ifndef ROOTRIGHTS_H
#define ROOTRIGHTS_H

#include <QtGlobal>

/**
 * Takes from root, for its own scope, the right to pass over the permissions of files: what a mode forbids is
 * then forbidden to the tests too, whoever runs them. For everybody else it changes nothing.
 */
class WithoutRootRights
{
public:
    WithoutRootRights();
    ~WithoutRootRights();

private:
    Q_DISABLE_COPY(WithoutRootRights)

    unsigned int m_before;
};

#endif
