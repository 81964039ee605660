#ifndef VARNEL_ENGINE_RENDER_RENDER_QUEUE_H
#define VARNEL_ENGINE_RENDER_RENDER_QUEUE_H

#include <boost/shared_ptr.hpp>
#include <boost/weak_ptr.hpp>
#include <vector>

namespace varnel_m3g {

class Appearance;
class Node;

/// The appearances that a render will draw, in 256 buckets by layer and blending, each in the order
/// of insertion. The lists run through the appearances themselves, which the queue does not own.
class RenderQueue {
 public:
  static constexpr int bucketCount = 256;

  /// The one queue of the process.
  static RenderQueue& get();

  /// The bucket that an appearance belongs to: by layer, and within it opaque before blended.
  static int bucketOf(const Appearance& appearance);

  /// Empties all buckets, also those that a render left filled when it failed.
  void clear();
  /// Brings the nodes below the root up to date for this render, root left as it is, and inserts
  /// the appearances of all meshes. Visits each node once, at any depth, without recursion.
  void collect(Node& root);
  /// Appends an appearance to its bucket unless this render has inserted it already; constant time.
  void insert(const boost::shared_ptr<Appearance>& appearance);
  /// The next appearance of a bucket; empty when the bucket is used up.
  boost::shared_ptr<Appearance> next(int bucket);
  /// Empties one bucket.
  void empty(int bucket);

 private:
  struct Bucket {
    boost::weak_ptr<Appearance> first;
    boost::weak_ptr<Appearance> last;
    boost::weak_ptr<Appearance> cursor;
  };
  /// A node whose children are being visited.
  struct Visit {
    Node* node;
    std::size_t nextChild;
  };

  void insertAppearances(Node& node);

  Bucket buckets[bucketCount];
  std::vector<Visit> path;
  unsigned stamp = 0;
};

}  // namespace varnel_m3g

#endif
