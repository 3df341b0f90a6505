# Unpacks the zip into the folder, in which nothing of another version is left.
file(REMOVE_RECURSE "${folder}")
file(ARCHIVE_EXTRACT INPUT "${zip}" DESTINATION "${folder}" TOUCH)
