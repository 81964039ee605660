package javax.microedition.m3g;

import java.lang.ref.PhantomReference;
import java.lang.ref.ReferenceQueue;
import java.util.HashSet;
import java.util.Set;
import java.util.function.LongConsumer;

/**
 * Frees the native objects of peers that have become unreachable. It works on the thread that makes
 * new peers and never beside it, since the engine takes one thread at a time.
 */
final class Disposer extends PhantomReference<Object> {
    private static final ReferenceQueue<Object> QUEUE = new ReferenceQueue<>();
    private static final Set<Disposer> LIVE = new HashSet<>();

    private final long handle;
    private final LongConsumer destroy;

    private Disposer(Object peer, long handle, LongConsumer destroy) {
        super(peer, QUEUE);
        this.handle = handle;
        this.destroy = destroy;
    }

    /**
     * Has {@code destroy} called with the handle some time after the peer has become unreachable;
     * it must not refer to the peer.
     */
    static synchronized void register(Object peer, long handle, LongConsumer destroy) {
        LIVE.add(new Disposer(peer, handle, destroy));
        for (Disposer dead = (Disposer) QUEUE.poll(); dead != null;
                dead = (Disposer) QUEUE.poll()) {
            LIVE.remove(dead);
            dead.destroy.accept(dead.handle);
        }
    }
}
