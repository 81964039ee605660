// Picks in random scenes beside a second implementation, in doubles, of the test that adds up the
// angles at which the corners of a triangle stand around the point where the ray meets its plane.
// Rays for which some triangle is a close call are left out.

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <random>

#include "engine/object/engine_limits.h"
#include "engine/scene/ray_intersection.h"
#include "tests/support/render_objects.h"

namespace varnel_m3g {
namespace {

using boost::shared_ptr;

struct Vec {
  double x = 0, y = 0, z = 0;
};
Vec operator+(Vec a, Vec b) {
  return {a.x + b.x, a.y + b.y, a.z + b.z};
}
Vec operator-(Vec a, Vec b) {
  return {a.x - b.x, a.y - b.y, a.z - b.z};
}
Vec operator*(double s, Vec a) {
  return {s * a.x, s * a.y, s * a.z};
}
double dot(Vec a, Vec b) {
  return a.x * b.x + a.y * b.y + a.z * b.z;
}
Vec cross(Vec a, Vec b) {
  return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}
double length(Vec a) {
  return std::sqrt(dot(a, a));
}
Vec unit(Vec a) {
  return (1 / length(a)) * a;
}
double area(Vec a, Vec b, Vec c) {
  return length(cross(b - a, c - a)) / 2;
}

// Row-major, affine.
struct Affine {
  double m[3][4] = {{1, 0, 0, 0}, {0, 1, 0, 0}, {0, 0, 1, 0}};

  explicit Affine(Node& node) {
    Transform composite;
    node.getCompositeTransform(composite);
    float rows[16];
    composite.get(rows);
    for (int r = 0; r < 3; ++r) {
      for (int c = 0; c < 4; ++c) {
        m[r][c] = rows[4 * r + c];
      }
    }
  }
  Vec direction(Vec v) const {
    const double in[3] = {v.x, v.y, v.z};
    double out[3] = {};
    for (int r = 0; r < 3; ++r) {
      for (int c = 0; c < 3; ++c) {
        out[r] += m[r][c] * in[c];
      }
    }
    return {out[0], out[1], out[2]};
  }
  Vec point(Vec v) const { return direction(v) + Vec{m[0][3], m[1][3], m[2][3]}; }
};

struct StripData {
  std::vector<int> indices;
  bool isExplicit;
};

struct MeshData {
  shared_ptr<Mesh> mesh;
  std::vector<Affine> toGroup;  // innermost first
  std::vector<Vec> positions;
  std::vector<Vec> normals;                   // may be empty
  std::vector<std::array<double, 2>> coords;  // may be empty
  std::vector<std::vector<StripData>> submeshes;
  std::vector<int> culling;  // -1 without a mode
  std::vector<int> winding;
  std::vector<bool> hasAppearance;
};

struct Hit {
  double t = 0;
  const MeshData* mesh = nullptr;
  int submesh = 0;
  Vec normal{0, 0, 1};
  double s = 0;
  double tt = 0;
};

enum class Verdict { MISS, HIT, CLOSE_CALL };

// The same test, with room around its limits.
Verdict rayAgainst(Vec p0, Vec p1, Vec a, Vec b, Vec c, double& t, Vec& hit) {
  const Vec n = cross(b - a, c - a);
  if (length(n) < 0.01) {
    return Verdict::CLOSE_CALL;
  }
  const double e = dot(unit(n), p1 - p0);
  if (std::fabs(e) < 0.01) {
    return Verdict::CLOSE_CALL;
  }
  t = dot(unit(n), a - p0) / e;
  if (std::fabs(t) < 1e-3) {
    return Verdict::CLOSE_CALL;
  }
  if (t < 0) {
    return Verdict::MISS;
  }
  hit = p0 + t * (p1 - p0);
  const Vec corners[3] = {a - hit, b - hit, c - hit};
  double sum = 0;
  bool wide = true;
  for (int i = 0; i < 3; ++i) {
    const double cosine = dot(unit(corners[i]), unit(corners[(i + 1) % 3]));
    const double angle = std::acos(std::fmin(1, std::fmax(-1, cosine))) * 180 / std::acos(-1.0);
    wide = wide && angle > 12 && angle < 168;
    sum += angle;
  }
  if (sum < 355) {
    return Verdict::MISS;
  }
  return wide ? Verdict::HIT : Verdict::CLOSE_CALL;
}

// False for a close call.
bool pickModel(const std::vector<MeshData>& meshes, Vec p0, Vec p1, Hit& best) {
  for (const MeshData& data : meshes) {
    const auto toGroup = [&](Vec v, bool isPoint) {
      for (const Affine& affine : data.toGroup) {
        v = isPoint ? affine.point(v) : affine.direction(v);
      }
      return v;
    };
    for (std::size_t submesh = 0; submesh < data.submeshes.size(); ++submesh) {
      if (!data.hasAppearance[submesh]) {
        continue;
      }
      for (const StripData& strip : data.submeshes[submesh]) {
        for (std::size_t i = 0; i + 2 < strip.indices.size(); ++i) {
          std::size_t index[3];
          Vec corner[3];
          for (std::size_t k = 0; k < 3; ++k) {
            index[k] = static_cast<std::size_t>(strip.indices[i + k]);
            corner[k] = toGroup(data.positions[index[k]], true);
          }
          double t = 0;
          Vec hit;
          const Verdict verdict = rayAgainst(p0, p1, corner[0], corner[1], corner[2], t, hit);
          if (verdict == Verdict::CLOSE_CALL) {
            return false;
          }
          if (verdict == Verdict::MISS) {
            continue;
          }
          if (best.t != 0 && std::fabs(t - best.t) < 1e-3) {
            return false;
          }
          if (best.t != 0 && t > best.t) {
            continue;
          }
          Vec n = i % 2 == 1 ? cross(corner[0] - corner[1], corner[2] - corner[1])
                             : cross(corner[1] - corner[0], corner[2] - corner[0]);
          if (data.winding[submesh] == PolygonMode::WINDING_CW) {
            n = -1.0 * n;
          }
          const double cosine = dot(unit(n), unit(p1 - p0));
          if (std::fabs(cosine) < 0.01) {
            return false;
          }
          const int culling =
              data.culling[submesh] == -1 ? PolygonMode::CULL_BACK : data.culling[submesh];
          if ((culling == PolygonMode::CULL_BACK && cosine > 0) ||
              (culling == PolygonMode::CULL_FRONT && cosine < 0)) {
            continue;
          }
          best.t = t;
          best.mesh = &data;
          best.submesh = static_cast<int>(submesh);
          const double whole = area(corner[0], corner[1], corner[2]);
          const double weights[3] = {area(hit, corner[1], corner[2]) / whole,
                                     area(hit, corner[0], corner[2]) / whole,
                                     area(hit, corner[0], corner[1]) / whole};
          if (!data.normals.empty()) {
            Vec sum;
            for (std::size_t k = 0; k < 3; ++k) {
              const std::size_t from = strip.isExplicit ? index[0] : index[k];
              sum = sum + weights[k] * unit(toGroup(data.normals[from], false));
            }
            if (length(sum) < 0.05) {
              return false;
            }
            best.normal = unit(sum);
          }
          if (!data.coords.empty()) {
            best.s = 0;
            best.tt = 0;
            for (std::size_t k = 0; k < 3; ++k) {
              best.s += weights[k] * data.coords[index[k]][0];
              best.tt += weights[k] * data.coords[index[k]][1];
            }
          }
        }
      }
    }
  }
  return true;
}

class RandomScene {
 public:
  explicit RandomScene(unsigned seed) : random(seed) {
    if (below(2) == 0) {
      root->addChild(group);
      move(*group);
    }
    const int meshCount = 1 + below(3);
    for (int i = 0; i < meshCount; ++i) {
      addMesh();
    }
  }

  double real(double low, double high) {
    return std::uniform_real_distribution<double>(low, high)(random);
  }
  int below(int limit) { return static_cast<int>(random() % static_cast<unsigned>(limit)); }

  shared_ptr<Group> root = Group::create();
  shared_ptr<Group> group = Group::create();
  std::vector<MeshData> meshes;

 private:
  float realf(double low, double high) { return static_cast<float>(real(low, high)); }

  void move(Node& node) {
    node.setTranslation(realf(-3, 3), realf(-3, 3), realf(-3, 3));
    node.setOrientation(realf(0, 360), realf(-1, 1), realf(-1, 1), 1);
    node.setScale(realf(0.5, 2), realf(0.5, 2), realf(-2, -0.5));
  }

  void addMesh() {
    MeshData data;
    const int count = 12;
    ShortArray positions;
    ByteArray normals;
    ShortArray coords;
    const double scale = 0.05;
    const float bias[3] = {0.5f, -0.25f, 1};
    for (int v = 0; v < count; ++v) {
      Vec position;
      double* const parts[3] = {&position.x, &position.y, &position.z};
      for (int k = 0; k < 3; ++k) {
        positions.push_back(static_cast<short>(below(201) - 100));
        *parts[k] = positions.back() * static_cast<double>(static_cast<float>(scale)) + bias[k];
      }
      data.positions.push_back(position);
    }
    const shared_ptr<VertexBuffer> buffer = VertexBuffer::create();
    buffer->setPositions(shortArray(3, positions), static_cast<float>(scale), bias);
    if (below(2) == 0) {
      for (int v = 0; v < count; ++v) {
        const int n[3] = {below(200) - 100, below(200) - 100, 1 + below(100)};
        normals.insert(normals.end(), n, n + 3);
        data.normals.push_back({double(n[0]), double(n[1]), double(n[2])});
      }
      buffer->setNormals(byteArray(3, normals));
    }
    if (below(2) == 0) {
      for (int v = 0; v < count; ++v) {
        const int c[2] = {below(100), below(100)};
        coords.insert(coords.end(), c, c + 2);
        data.coords.push_back({c[0] * 0.5 + 3, c[1] * 0.5 + 4});
      }
      const float coordBias[3] = {3, 4, 0};
      buffer->setTexCoords(0, shortArray(2, coords), 0.5f, coordBias);
    }
    std::vector<shared_ptr<IndexBuffer>> submeshes;
    std::vector<shared_ptr<Appearance>> appearances;
    const int submeshCount = 1 + below(3);
    for (int s = 0; s < submeshCount; ++s) {
      addSubmesh(data, submeshes, appearances);
    }
    data.mesh = Mesh::create(buffer, submeshes.data(), appearances.data(),
                             static_cast<unsigned>(submeshCount));
    move(*data.mesh);
    data.toGroup.emplace_back(*data.mesh);
    shared_ptr<Group> above = group;
    if (below(2) == 0) {
      const shared_ptr<Group> inner = Group::create();
      move(*inner);
      group->addChild(inner);
      data.toGroup.emplace_back(*inner);
      above = inner;
    }
    above->addChild(data.mesh);
    meshes.push_back(data);
  }

  void addSubmesh(MeshData& data, std::vector<shared_ptr<IndexBuffer>>& submeshes,
                  std::vector<shared_ptr<Appearance>>& appearances) {
    const int lengths[] = {3 + below(3), 3 + below(3)};
    const bool isExplicit = below(2) == 0;
    const int first = below(3);
    std::vector<int> indices;
    std::vector<StripData> strips;
    for (int length : lengths) {
      StripData strip;
      strip.isExplicit = isExplicit;
      for (int i = 0; i < length; ++i) {
        const int next = isExplicit ? below(12) : first + static_cast<int>(indices.size());
        strip.indices.push_back(next);
        indices.push_back(next);
      }
      strips.push_back(strip);
    }
    submeshes.push_back(isExplicit
                            ? TriangleStripArray::create(
                                  indices.data(), static_cast<int>(indices.size()), lengths, 2)
                            : TriangleStripArray::create(first, lengths, 2));
    data.submeshes.push_back(strips);
    shared_ptr<Appearance> appearance;
    data.hasAppearance.push_back(below(6) != 0);
    data.culling.push_back(-1);
    data.winding.push_back(PolygonMode::WINDING_CCW);
    if (data.hasAppearance.back()) {
      appearance = plainAppearance();
      if (below(3) != 0) {
        data.culling.back() = PolygonMode::CULL_BACK + below(3);
        data.winding.back() = PolygonMode::WINDING_CCW + below(2);
        const shared_ptr<PolygonMode> mode = PolygonMode::create();
        mode->setCulling(data.culling.back());
        mode->setWinding(data.winding.back());
        appearance->setPolygonMode(mode);
      }
    }
    appearances.push_back(appearance);
  }

  std::mt19937 random;
};

TEST(PickModel, AgreesOverRandomScenesAndRays) {
  int compared = 0;
  int hits = 0;
  for (unsigned seed = 1; seed <= 500; ++seed) {
    SCOPED_TRACE(seed);
    RandomScene scene(seed);
    for (int i = 0; i < 40; ++i) {
      float from[3];
      float to[3];
      for (int k = 0; k < 3; ++k) {
        from[k] = static_cast<float>(scene.real(-25, 25));
        to[k] = static_cast<float>(scene.real(-6, 6));
      }
      Hit expected;
      if (!pickModel(scene.meshes, {from[0], from[1], from[2]}, {to[0], to[1], to[2]}, expected)) {
        continue;
      }
      ++compared;
      RayIntersection result;
      const bool found =
          scene.group->pick(-1, from[0], from[1], from[2], to[0], to[1], to[2], &result);
      ASSERT_EQ(found, expected.mesh != nullptr);
      if (!found) {
        continue;
      }
      ++hits;
      EXPECT_NEAR(result.getDistance(), expected.t, 1e-4 * std::fmax(1, expected.t));
      EXPECT_EQ(result.getIntersected(), expected.mesh->mesh);
      EXPECT_EQ(result.getSubmeshIndex(), expected.submesh);
      EXPECT_NEAR(result.getNormalX(), expected.normal.x, 2e-3);
      EXPECT_NEAR(result.getNormalY(), expected.normal.y, 2e-3);
      EXPECT_NEAR(result.getNormalZ(), expected.normal.z, 2e-3);
      EXPECT_NEAR(result.getTextureS(0), expected.s, 2e-2);
      EXPECT_NEAR(result.getTextureT(0), expected.tt, 2e-2);
    }
  }
  // The rays that are left out must not be all.
  EXPECT_GT(compared, 2000);
  EXPECT_GT(hits, 500);
}

}  // namespace
}  // namespace varnel_m3g
