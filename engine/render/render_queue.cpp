#include "engine/render/render_queue.h"

#include "engine/scene/mesh.h"
#include "engine/surface/appearance.h"
#include "engine/surface/compositing_mode.h"

namespace varnel_m3g {

namespace {

/// Takes over from the parent what a node is drawn with. Its alpha is a product over two levels
/// only, while a hidden parent hides everything below it.
void inherit(const Node& parent, Node& node) {
  node.updateOwnWorldTransform(true, parent.worldTransform());
  node.setEffectiveAlpha(node.getAlphaFactor() * parent.getAlphaFactor());
  node.setEffectiveRenderingEnabled(parent.isEffectiveRenderingEnabled() &&
                                    node.isRenderingEnabled());
}

}  // namespace

RenderQueue& RenderQueue::get() {
  static RenderQueue& queue = *new RenderQueue;
  return queue;
}

int RenderQueue::bucketOf(const Appearance& appearance) {
  const boost::shared_ptr<CompositingMode>& mode = appearance.getCompositingMode();
  const bool blended = mode && mode->getBlending() != CompositingMode::REPLACE;
  return 2 * appearance.getLayer() + 126 + (blended ? 1 : 0);
}

void RenderQueue::clear() {
  for (int i = 0; i < bucketCount; ++i) {
    empty(i);
  }
  ++stamp;
  if (stamp == 0) {
    ++stamp;  // 0 marks an appearance that no render has inserted
  }
}

void RenderQueue::collect(Node& root) {
  insertAppearances(root);
  path.clear();
  path.push_back({&root, 0});
  while (!path.empty()) {
    Node& parent = *path.back().node;
    const std::size_t child = path.back().nextChild;
    if (child == parent.childList().size()) {
      path.pop_back();
      continue;
    }
    ++path.back().nextChild;
    Node& node = *parent.childList()[child];
    inherit(parent, node);
    insertAppearances(node);
    path.push_back({&node, 0});
  }
}

void RenderQueue::insertAppearances(Node& node) {
  const Mesh* mesh = dynamic_cast<Mesh*>(&node);
  if (!mesh) {
    return;
  }
  const int count = static_cast<int>(mesh->getSubmeshCount());
  for (int i = 0; i < count; ++i) {
    const boost::shared_ptr<Appearance>& appearance = mesh->getAppearance(i);
    if (appearance) {
      insert(appearance);
    }
  }
}

void RenderQueue::insert(const boost::shared_ptr<Appearance>& appearance) {
  if (appearance->getQueuedInRender() == stamp) {
    return;
  }
  appearance->setQueuedInRender(stamp);
  Bucket& bucket = buckets[bucketOf(*appearance)];
  const boost::shared_ptr<Appearance> tail = bucket.last.lock();
  if (tail) {
    tail->setRenderNext(appearance);
  } else {
    bucket.first = appearance;
    bucket.cursor = appearance;
  }
  bucket.last = appearance;
  appearance->setRenderNext(boost::weak_ptr<Appearance>());
}

boost::shared_ptr<Appearance> RenderQueue::next(int index) {
  Bucket& bucket = buckets[index];
  const boost::shared_ptr<Appearance> appearance = bucket.cursor.lock();
  if (appearance) {
    bucket.cursor = appearance->getRenderNext();
  } else {
    bucket.cursor.reset();
  }
  return appearance;
}

void RenderQueue::empty(int index) {
  Bucket& bucket = buckets[index];
  bucket.first.reset();
  bucket.last.reset();
  bucket.cursor.reset();
}

}  // namespace varnel_m3g
