#ifndef APART_H
#define APART_H

/*
 * Included by every file here but those in contracts/. The tests stand for a host or a sibling that was built
 * elsewhere and long ago: they know the product by its binary boundary, and don't compile where one of its
 * headers can be found.
 */
#if __has_include(<IUIPlugin.h>) || __has_include(<PriorityService.h>) ||                                     \
    __has_include(<HostControl.h>) || __has_include(<StoredProfile.h>)
#error "The boundary tests can see a header of the product"
#endif

#endif
