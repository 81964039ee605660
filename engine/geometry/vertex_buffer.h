#ifndef VARNEL_ENGINE_GEOMETRY_VERTEX_BUFFER_H
#define VARNEL_ENGINE_GEOMETRY_VERTEX_BUFFER_H

#include <boost/shared_ptr.hpp>
#include <memory>
#include <vector>

#include "engine/object/object3d.h"

namespace varnel_m3g {

class M3gObjectInputStream;
class VertexArray;

/// The vertex attributes of one mesh: shared arrays for positions, normals, colours and, per
/// texture unit, texture coordinates, with the scales and biases that decode them.
class VertexBuffer : public Object3D {
 public:
  static boost::shared_ptr<VertexBuffer> create();

  VertexBuffer();
  ~VertexBuffer() override;

  /// Back to the defaults of a new buffer.
  void initialise();
  void load(M3gObjectInputStream& stream, ObjectTable& table);

  unsigned getReferences(boost::shared_ptr<Object3D>* references, unsigned max) override;
  jobject createJavaPeer(JNIEnv* env) override;
  void dump() override;
  boost::shared_ptr<Object3D> duplicateImpl(boost::shared_ptr<Object3D> target) override;

  /// Shares the array; null detaches it and leaves scale and bias. bias is three floats, or null to
  /// keep the present bias. Throws std::invalid_argument for other than three components and for a
  /// vertex count that differs from the buffer's.
  void setPositions(const boost::shared_ptr<VertexArray>& positions, float scale,
                    const float* bias);
  /// The same for one texture unit; two or three components. Throws std::invalid_argument also for
  /// a unit outside the limits.
  void setTexCoords(int index, const boost::shared_ptr<VertexArray>& texCoords, float scale,
                    const float* bias);
  /// Three components, or null to detach.
  void setNormals(const boost::shared_ptr<VertexArray>& normals);
  /// Three or four bytes per vertex, or null to detach.
  void setColors(const boost::shared_ptr<VertexArray>& colors);

  /// scaleBias receives the scale and three bias values; it may be null.
  boost::shared_ptr<VertexArray> getPositions(float* scaleBias) const;
  /// The same for one unit. Throws std::out_of_range for a unit outside the limits.
  boost::shared_ptr<VertexArray> getTexCoords(int index, float* scaleBias) const;
  const boost::shared_ptr<VertexArray>& getNormals() const { return normals; }
  const boost::shared_ptr<VertexArray>& getColors() const { return colors; }
  /// The vertex count of the positions, 0 without positions.
  int getVertexCount() const;

  /// 0xAARRGGBB.
  void setDefaultColor(int argb);
  int getDefaultColor() const;

  /// 0 positions, 1 normals, 2 colours, from 3 on the coordinates of unit selector - 3; anything
  /// else gives an empty pointer.
  boost::shared_ptr<VertexArray> getArray(int selector) const;

  /// The decoded position, one float per component, the caller's own. Throws std::out_of_range for
  /// an index outside the buffer.
  std::unique_ptr<float[]> getVertex(int index) const;
  /// The raw normal; null without normals.
  std::unique_ptr<float[]> getNormal(int index) const;
  /// The decoded texture coordinate; null without an array in the unit.
  std::unique_ptr<float[]> getTexCoord(int index, int unit) const;

  /// The same three into the caller's array of at least four floats, without an allocation; false
  /// stands for null.
  void readVertex(int index, float* out) const;
  bool readNormal(int index, float* out) const;
  bool readTexCoord(int index, int unit, float* out) const;

  /// Writes the arrays with all their values to the standard output.
  void printContents() const;

  float getPositionScale() const { return positionScale; }
  /// Three floats, or null for a zero bias.
  const float* getPositionBias() const { return positionBias.get(); }
  /// Some setTexCoords has been called.
  bool hasTexCoordTables() const { return tablesExist; }
  /// Empty, 1 and null for a unit without an entry, whatever the index.
  boost::shared_ptr<VertexArray> texCoordArray(int unit) const;
  float texCoordScale(int unit) const;
  const float* texCoordBias(int unit) const;
  /// Four bytes R, G, B, A.
  const unsigned char* getDefaultColorBytes() const { return defaultColor; }

  /// The renderer's copy of the colours with an alpha factor multiplied in, empty at first.
  const boost::shared_ptr<VertexArray>& getWorkingColors() const { return workingColors; }
  void setWorkingColors(const boost::shared_ptr<VertexArray>& copy) { workingColors = copy; }
  /// The factor of getWorkingColors(); -1 where there is no valid copy.
  float getCachedAlphaFactor() const { return cachedAlphaFactor; }
  void setCachedAlphaFactor(float factor) { cachedAlphaFactor = factor; }
  /// The revision of the colours that getWorkingColors() was scaled from. Another buffer may share
  /// the colours and have taken note of a write before this one is drawn.
  unsigned getWorkingRevision() const { return workingRevision; }
  void setWorkingRevision(unsigned revision) { workingRevision = revision; }

  /// Set by each setter of an array.
  bool isDirty() const { return dirty; }
  void clearDirty() { dirty = false; }

 private:
  /// Makes the per-unit tables, or lets them grow with the engine's unit count.
  void provideTexCoordTables();
  bool fits(const VertexArray& array) const;
  /// Units of the engine that have an entry in the tables; the engine may have fewer or more by now
  /// than when they were made.
  int entryCount() const;
  bool unitHasEntry(int unit) const;

  unsigned char defaultColor[4] = {255, 255, 255, 255};  // R, G, B, A
  bool tablesExist = false;
  std::vector<boost::shared_ptr<VertexArray>> texCoordArrays;  // by unit, as the next two
  float positionScale = 1.0f;
  std::unique_ptr<float[]> positionBias;  // 3 floats; null stands for zeros
  std::vector<float> texCoordScales;
  std::vector<std::unique_ptr<float[]>> texCoordBiases;
  boost::shared_ptr<VertexArray> colors;
  boost::shared_ptr<VertexArray> workingColors;
  boost::shared_ptr<VertexArray> normals;
  boost::shared_ptr<VertexArray> positions;
  float cachedAlphaFactor = -1.0f;
  unsigned workingRevision = 0;
  bool dirty = true;
};

}  // namespace varnel_m3g

#endif
