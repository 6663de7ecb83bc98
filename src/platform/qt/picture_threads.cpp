// They are drawn on the threads of Qt's own pool. On any other Qt hands each larger gradient to that pool in stripes and waits
// for them, some hundred times for a window: that takes longer than the drawing.
#include "platform/qt/picture_threads.h"

#include <QThreadPool>
#include <algorithm>
#include <atomic>
#include <latch>
#include <map>
#include <string>

namespace orvanta {

namespace {

struct Job {
  std::string key;
  const ControlWidget* widget;
  QImage picture;
};

std::vector<Job> lacking(const std::vector<const ControlWidget*>& widgets, const ArtCache& cache) {
  std::map<std::string, const ControlWidget*> wanted;
  for (const ControlWidget* widget : widgets) {
    const std::string key = widget->pictureKey();
    if (!key.empty() && cache.find(key) == nullptr) wanted.emplace(key, widget);
  }
  std::vector<Job> jobs;
  for (const auto& [key, widget] : wanted) jobs.push_back({key, widget, {}});
  // The largest first, so that no thread is left with it at the end.
  const auto area = [](const Job& job) { return job.widget->width() * job.widget->height(); };
  std::stable_sort(jobs.begin(), jobs.end(), [&](const Job& a, const Job& b) { return area(a) > area(b); });
  return jobs;
}

void draw(std::vector<Job>& jobs, std::atomic<size_t>& next) {
  Fonts fonts;
  ArtCache pictures(ArtCache::kSurfaces);
  ArtCache glows(ArtCache::kGlows);
  for (size_t i = next++; i < jobs.size(); i = next++) jobs[i].picture = jobs[i].widget->picture({fonts, pictures, glows});
}

}  // namespace

void keepPictures(const std::vector<const ControlWidget*>& widgets, ArtCache& cache) {
  std::vector<Job> jobs = lacking(widgets, cache);
  QThreadPool& pool = *QThreadPool::globalInstance();
  const auto threads = std::min(static_cast<std::ptrdiff_t>(jobs.size()), std::ptrdiff_t{pool.maxThreadCount()});
  std::atomic<size_t> next = 0;
  std::latch drawn(threads);
  for (std::ptrdiff_t i = 0; i < threads; ++i) {
    pool.start([&] {
      draw(jobs, next);
      drawn.count_down();
    });
  }
  drawn.wait();
  for (Job& job : jobs) cache.keep(job.key, std::move(job.picture));
}

}  // namespace orvanta
