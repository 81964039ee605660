// The work of a frame that grows with the scene, each beside what it could cost at least: compare
// the lines of one run with each other, never with those of another machine.

#include <benchmark/benchmark.h>

#include <cstring>
#include <vector>

#include "engine/animation/keyframe_sequence.h"
#include "engine/geometry/vertex_array.h"
#include "engine/scene/group.h"

namespace {

using namespace varnel_m3g;

constexpr int vertices = 10000;

boost::shared_ptr<VertexArray> positions(short value) {
  const auto array = VertexArray::create(vertices, 3, 2);
  const std::vector<short> values(std::size_t{3} * vertices, value);
  array->set(0, vertices, values.data());
  return array;
}

void emptyLoop(benchmark::State& state) {
  for (auto _ : state) {
    benchmark::ClobberMemory();
  }
}
BENCHMARK(emptyLoop);

/// The least that a blend of one target costs: reading and writing its bytes.
void copyOfPositions(benchmark::State& state) {
  const auto source = positions(100);
  std::vector<short> copy(std::size_t{3} * vertices);
  for (auto _ : state) {
    std::memcpy(copy.data(), source->shortData(), copy.size() * sizeof copy[0]);
    benchmark::ClobberMemory();
  }
  state.SetItemsProcessed(state.iterations() * vertices);
}
BENCHMARK(copyOfPositions);

void blendOfPositions(benchmark::State& state) {
  const auto base = positions(100);
  const auto target = positions(200);
  boost::shared_ptr<VertexArray> result = positions(0);
  VertexArray* targets[] = {target.get()};
  const float weights[] = {0.25f};
  for (auto _ : state) {
    VertexArray::morph(*base, 1, targets, weights, true, result);
  }
  if (result->shortData()[3 * vertices - 1] != 125) {
    state.SkipWithError("the blend is wrong");
  }
  state.SetItemsProcessed(state.iterations() * vertices);
}
BENCHMARK(blendOfPositions);

void evaluationOfKeyframes(benchmark::State& state) {
  const int keyframes = static_cast<int>(state.range(0));
  const auto sequence = KeyframeSequence::create(keyframes, 3, KeyframeSequence::LINEAR);
  for (int i = 0; i < keyframes; ++i) {
    const float value[] = {static_cast<float>(i), 0, 0};
    sequence->setKeyframe(i, 10 * i, value);
  }
  sequence->setDuration(10 * keyframes);
  const float time = 10.0f * static_cast<float>(keyframes / 2) + 5.0f;
  const float* value = nullptr;
  int count = 0;
  for (auto _ : state) {
    value = sequence->getKeyframe(time, &count);
    benchmark::ClobberMemory();
  }
  if (count != 3 || value[0] != static_cast<float>(keyframes / 2) + 0.5f) {
    state.SkipWithError("the value is wrong");
  }
}
BENCHMARK(evaluationOfKeyframes)->Arg(10)->Arg(1000);

void updateOfWorldTransforms(benchmark::State& state) {
  const int count = static_cast<int>(state.range(0));
  const auto root = Group::create();
  boost::shared_ptr<Group> last;
  for (int i = 0; i < count; ++i) {
    last = Group::create();
    last->setTranslation(1, 2, static_cast<float>(i));
    root->addChild(last);
  }
  const Transform identity;
  for (auto _ : state) {
    root->updateWorldTransforms(true, identity);
  }
  if (last->worldTransform().data()[14] != static_cast<float>(count - 1)) {
    state.SkipWithError("the transform is wrong");
  }
  state.SetItemsProcessed(state.iterations() * count);
}
BENCHMARK(updateOfWorldTransforms)->Arg(100)->Arg(10000);

}  // namespace

BENCHMARK_MAIN();
