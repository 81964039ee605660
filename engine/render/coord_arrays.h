#ifndef VARNEL_ENGINE_RENDER_COORD_ARRAYS_H
#define VARNEL_ENGINE_RENDER_COORD_ARRAYS_H

#include <boost/shared_ptr.hpp>
#include <vector>

namespace varnel_m3g {

class VertexArray;

/// The texture coordinate arrays of all units, as the calls made through this class left them. A
/// draw may leave a unit's array on; this record keeps what it points at alive and knows how far it
/// may be read.
class CoordArrays {
 public:
  /// The one record of the process.
  static CoordArrays& get();

  /// Makes a unit, counted from 0, the one that the next calls speak of.
  void activate(int unit);
  void enable();
  void disable();
  /// Points at pairs in an array; it is shared until the next call for the unit.
  void point(const boost::shared_ptr<VertexArray>& array);
  /// Points at pairs of floats of the caller's, who must switch the array off while they live.
  void point(const float* pairs, unsigned count);

  /// Switches off the arrays that cannot be read up to this number of vertices.
  void retireShorterThan(unsigned count);
  /// Tells which context is current. The arrays of another one than before count as off.
  void followContext(const void* context);

 private:
  struct Unit {
    bool enabled = false;
    boost::shared_ptr<VertexArray> array;
    const void* data = nullptr;
    unsigned count = 0;
  };

  Unit& current();
  static bool isReadable(const Unit& unit, unsigned count);

  std::vector<Unit> units;
  int currentUnit = 0;
  const void* currentContext = nullptr;
};

}  // namespace varnel_m3g

#endif
