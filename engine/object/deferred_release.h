#ifndef VARNEL_ENGINE_OBJECT_DEFERRED_RELEASE_H
#define VARNEL_ENGINE_OBJECT_DEFERRED_RELEASE_H

#include <boost/shared_ptr.hpp>

namespace varnel_m3g {

/// Drops one strong reference without recursion: a release from inside another release on the same
/// thread waits until that one is done, so that a destructor that hands its children here can end
/// a chain of any length on a small stack. All that was handed over is gone when the outermost
/// call returns, in the order in which a recursion would have ended it.
void releaseDeferred(boost::shared_ptr<void> reference);

}  // namespace varnel_m3g

#endif
