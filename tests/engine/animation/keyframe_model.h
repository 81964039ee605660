#ifndef VARNEL_TESTS_ENGINE_ANIMATION_KEYFRAME_MODEL_H
#define VARNEL_TESTS_ENGINE_ANIMATION_KEYFRAME_MODEL_H

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <functional>
#include <numeric>
#include <stdexcept>
#include <vector>

namespace varnel_test {

/// A second evaluation of keyframe sequences for comparison: plain values, all in double, step by
/// step, with nothing kept between calls.
struct KeyframeModel {
  struct Key {
    int time = 0;
    std::vector<double> value;
  };
  using Quaternion = std::array<double, 4>;

  std::vector<Key> keys;
  int components = 1;
  int interpolation = 176;
  int repeat = 192;
  int first = 0;
  int last = 0;
  int duration = 0;

  /// Set when an angle came so near to one of the limits of the two slerps or of a logarithm that
  /// rounding decides which way they go.
  mutable bool nearLimit = false;
  /// The way between the two keyframes of the last evaluation; a time before a looping range makes
  /// it negative.
  mutable double way = 0;

  std::vector<double> at(double time) const {
    const std::vector<int> order = playingOrder();
    const int n = static_cast<int>(order.size());
    if (repeat != 192) {
      while (time >= duration) {
        time -= duration;
      }
    }
    const double begin = keys[uns(first)].time;
    const double end = keys[uns(last)].time;
    const double gap = duration - end + begin;
    if (time < begin) {
      return repeat == 192 ? keys[uns(first)].value
                           : mix((duration - end + time) / gap, n - 1, 0, n);
    }
    if (time >= end) {
      return repeat == 192 ? keys[uns(last)].value : mix((time - end) / gap, n - 1, 0, n);
    }
    int i = 0;
    while (i < n - 1 && time >= keys[uns(order[uns(i)])].time) {
      ++i;
    }
    --i;
    if (interpolation == 180) {
      return mix(1.0, i, 0, n);
    }
    const int from = keys[uns(order[uns(i)])].time;
    const int to = keys[uns(order[uns(i + 1)])].time;
    return mix((time - from) / (to - from), i, i + 1, n);
  }

 private:
  static std::size_t uns(int i) { return static_cast<std::size_t>(i); }

  std::vector<int> playingOrder() const {
    std::vector<int> order;
    const int all = static_cast<int>(keys.size());
    int steps = first < last ? last - first + 1 : all - first + last + 1;
    for (int k = first; steps > 0; --steps, k = (k + 1) % all) {
      order.push_back(k);
    }
    const auto earlier = [this](int a, int b) { return keys[uns(a)].time < keys[uns(b)].time; };
    if (!std::is_sorted(order.begin(), order.end(), earlier)) {
      throw std::runtime_error("Keyframe times in decreasing order");
    }
    if (duration < keys[uns(last)].time) {
      throw std::runtime_error("Duration less than time of last keyframe");
    }
    return order;
  }

  const Key& key(int position) const { return keys[uns(position) % keys.size()]; }

  Quaternion quaternion(int position) const {
    const std::vector<double>& v = key(position).value;
    return {v[0], v[1], v[2], v[3]};
  }

  int before(int a, int n) const { return a > 0 ? a - 1 : repeat == 192 ? a : a - 1 + n; }
  int after(int b, int n) const { return b + 1 < n ? b + 1 : repeat == 192 ? b : (b + 1) % n; }

  std::vector<double> mix(double s, int a, int b, int n) const {
    way = s;
    if (keys.size() == 1) {
      return keys[0].value;
    }
    const auto list = [](const Quaternion& q) { return std::vector<double>(q.begin(), q.end()); };
    switch (interpolation) {
      case 176: {
        std::vector<double> result;
        std::transform(key(a).value.begin(), key(a).value.end(), key(b).value.begin(),
                       std::back_inserter(result),
                       [s](double x, double y) { return (1 - s) * x + s * y; });
        return result;
      }
      case 177:
        return list(shortSlerp(s, quaternion(a), quaternion(b)));
      case 178:
        return spline(s, a, b, n);
      case 179:
        return list(squad(s, a, b, n));
      default:
        return key(a).value;
    }
  }

  std::vector<double> spline(double s, int a, int b, int n) const {
    const Key& ka = key(a);
    const Key& kb = key(b);
    const Key& previous = key(before(a, n));
    const Key& next = key(after(b, n));
    const double factorA = 2.0 * (kb.time - ka.time) / static_cast<double>(kb.time - previous.time);
    const double factorB = 2.0 * (next.time - kb.time) / static_cast<double>(next.time - ka.time);
    std::vector<double> result;
    for (int c = 0; c < components; ++c) {
      if (c == 3 && components != 4) {
        // The fourth row then has the end points 1 and 1 and no tangents.
        result.push_back(1.0);
        continue;
      }
      if (c > 3) {
        // Left as the scratch was before any evaluation.
        result.push_back(0.0);
        continue;
      }
      const double p0 = ka.value[uns(c)];
      const double p1 = kb.value[uns(c)];
      const double t0 = (p1 - previous.value[uns(c)]) / 2 * factorA;
      const double t1 = (next.value[uns(c)] - p0) / 2 * factorB;
      result.push_back(p0 + s * t0 + s * s * (3 * (p1 - p0) - 2 * t0 - t1) +
                       s * s * s * (2 * (p0 - p1) + t0 + t1));
    }
    return result;
  }

  static double dot(const Quaternion& p, const Quaternion& q) {
    return std::inner_product(p.begin(), p.end(), q.begin(), 0.0);
  }

  static Quaternion unit(Quaternion q) {
    const double length = std::sqrt(dot(q, q));
    if (length > 0) {
      for (double& c : q) {
        c /= length;
      }
    }
    return q;
  }

  static Quaternion times(const Quaternion& p, const Quaternion& q) {
    const auto [px, py, pz, pw] = p;
    const auto [qx, qy, qz, qw] = q;
    return {pw * qx + px * qw + py * qz - pz * qy, pw * qy - px * qz + py * qw + pz * qx,
            pw * qz + px * qy - py * qx + pz * qw,
            std::clamp(pw * qw - px * qx - py * qy - pz * qz, -1.0, 1.0)};
  }

  static Quaternion inverse(const Quaternion& q) {
    const double n = dot(q, q);
    return n <= 0 ? q : Quaternion{-q[0] / n, -q[1] / n, -q[2] / n, q[3] / n};
  }

  void limit(double value, double at, double margin) const {
    nearLimit = nearLimit || std::fabs(value - at) < margin;
  }

  std::array<double, 3> logarithm(Quaternion q) const {
    if (!(q[3] <= 1 && dot(q, q) <= 1)) {
      q = unit(q);
    }
    const double w = std::clamp(q[3], -1.0, 1.0);
    const double sn = std::sqrt(1 - w * w);
    // Near a full turn the rounding of w turns the axis of a long logarithm. Near none the
    // logarithm itself is too short to matter.
    if (w < 0) {
      limit(sn, 0.0, 0.01);
    }
    if (sn < 0.001) {
      return {std::acos(w), 0, 0};
    }
    std::array<double, 3> axis = {q[0] / sn, q[1] / sn, q[2] / sn};
    const double length = std::hypot(axis[0], axis[1], axis[2]);
    for (double& c : axis) {
      c = c / length * std::acos(w);
    }
    return axis;
  }

  static Quaternion exponential(const std::array<double, 3>& v) {
    const double angle = std::hypot(v[0], v[1], v[2]);
    const double scale = angle >= 0.001 ? std::sin(angle) / angle : 1.0;
    const Quaternion q = {v[0] * scale, v[1] * scale, v[2] * scale, std::cos(angle)};
    return dot(q, q) > 1 ? unit(q) : q;
  }

  double angleBetween(const Quaternion& p, const Quaternion& q, bool fold) const {
    double d = std::clamp(dot(p, q), -1.0, 1.0);
    if (fold) {
      limit(d, 0.0, 1e-3);
      d = std::fabs(d);
    }
    double angle = std::acos(d);
    if (fold && angle >= 1.5707963705062866) {
      angle -= 1.5707963705062866;
    }
    limit(angle, 0.95, 1e-3);
    return std::max(angle, 0.001);
  }

  Quaternion shortSlerp(double t, const Quaternion& p, Quaternion q) const {
    const double angle = angleBetween(p, q, true);
    if (dot(p, q) < 0) {
      std::transform(q.begin(), q.end(), q.begin(), std::negate<>());
    }
    Quaternion result;
    for (std::size_t c = 0; c < 4; ++c) {
      result[c] =
          angle < 0.949999988079071
              ? (std::sin((1 - t) * angle) * p[c] + std::sin(t * angle) * q[c]) / std::sin(angle)
              : (1 - t) * p[c] + t * q[c];
    }
    return dot(result, result) > 1 ? unit(result) : result;
  }

  Quaternion plainSlerp(double t, const Quaternion& p, const Quaternion& q) const {
    const double angle = angleBetween(p, q, false);
    Quaternion result = {};
    for (std::size_t c = 0; c < 4; ++c) {
      if (angle < 0.949999988079071) {
        result[c] =
            (std::sin((1 - t) * angle) * p[c] + std::sin(t * angle) * q[c]) / std::sin(angle);
      } else {
        result[c] = (1 - t) * p[c] + t * q[c];
        if (dot(result, result) > 1) {
          result = unit(result);
        }
      }
    }
    return result;
  }

  Quaternion control(const Quaternion& at, const Quaternion& one, const Quaternion& other) const {
    const auto a = logarithm(times(inverse(at), one));
    const auto b = logarithm(times(inverse(at), other));
    return unit(times(
        at, exponential({-0.25 * (a[0] + b[0]), -0.25 * (a[1] + b[1]), -0.25 * (a[2] + b[2])})));
  }

  Quaternion squad(double s, int a, int b, int n) const {
    const Quaternion qa = quaternion(a);
    const Quaternion qb = quaternion(b);
    const Quaternion aa = control(qa, quaternion(before(a, n)), qb);
    const Quaternion ab = control(qb, qa, quaternion(after(b, n)));
    return plainSlerp(2 * s * (1 - s), plainSlerp(s, qa, qb), plainSlerp(s, aa, ab));
  }
};

}  // namespace varnel_test

#endif
