// Builds the database: build_database SCRIPTURE_LIST TOPICS_FOLDER MAPS_FOLDER OUT

#include "database/Database.h"
#include "database/Png.h"
#include "importer/Files.h"
#include "importer/InputError.h"
#include <exception>
#include <iostream>

namespace {

std::vector<Topic> readAllTopics(const std::filesystem::path& folder)
{
    std::vector<Topic> topics;
    if (!std::filesystem::exists(folder)) {
        std::cerr << "build_database: there is no " << folder.string() << "; the database holds no topics.\n";
        return topics;
    }
    std::set<std::string> names;
    for (const auto& [file, type] : topicFiles) {
        const std::filesystem::path path = folder / file;
        const auto read = readTopics(readFile(path), path.string(), type, names);
        topics.insert(topics.end(), read.begin(), read.end());
    }
    return topics;
}

Map readMap(const MapEntry& entry, const std::filesystem::path& folder)
{
    const std::filesystem::path path = folder / entry.file;
    std::string picture = readFile(path);
    try {
        if (isPng(picture))
            picture = withNaturalSize(picture, entry.width, entry.height);
    } catch (const InputError& error) {
        throw InputError(path.string() + ": " + error.what());
    }
    return {entry.number, entry.description, picture};
}

std::vector<Map> readAllMaps(const std::filesystem::path& folder)
{
    std::vector<Map> maps;
    if (!std::filesystem::exists(folder)) {
        std::cerr << "build_database: there is no " << folder.string() << "; the database holds no maps.\n";
        return maps;
    }
    const std::filesystem::path list = folder / "maps.tsv";
    for (const MapEntry& entry : readMapList(readFile(list), list.string()))
        maps.push_back(readMap(entry, folder));
    return maps;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 5) {
        std::cerr << "Usage: build_database SCRIPTURE_LIST TOPICS_FOLDER MAPS_FOLDER OUT\n";
        return 2;
    }
    try {
        const auto verses = readVerseList(readFile(argv[1]), argv[1]);
        const auto topics = readAllTopics(argv[2]);
        const auto maps = readAllMaps(argv[3]);
        const int freePages = buildDatabase(argv[4], verses, topics, maps);
        std::cout << "Built " << argv[4] << ": " << verses.size() << " verses, " << topics.size()
                  << " topics, " << maps.size() << " maps; " << freePages << " pages ("
                  << freePages * databasePageSize << " bytes) are free.\n";
    } catch (const std::exception& error) {
        std::cerr << "build_database: " << error.what() << "\n";
        return 1;
    }
    return 0;
}
