// One list a thread; a finished list changes hands.
#include <attrmgr/attrmgr.hpp>
#include <iostream>
#include <thread>
#include <vector>

namespace attr = attrmgr::attr;

namespace {

attrmgr::list new_record(std::uint32_t port) {
  attrmgr::list record;
  record.add(attr::nas_port, port);
  return record;
}

}  // namespace

int main() {
  attrmgr::register_client("threads");  // before there are threads

  // [threads]
  std::vector<attrmgr::list> records(4);
  std::vector<std::thread> workers;
  for (std::uint32_t port = 0; port < records.size(); ++port)
    workers.emplace_back([&mine = records[port], port] { mine = new_record(port); });
  for (std::thread &worker : workers) worker.join();  // from here on the lists are this thread's

  attrmgr::list all;
  for (attrmgr::list &record : records) all.splice(std::move(record));
  // [threads]
  for (const std::uint32_t port : all.all(attr::nas_port)) std::cout << "port " << port << '\n';
}
