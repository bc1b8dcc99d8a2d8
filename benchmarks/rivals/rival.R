# SPDX-License-Identifier: MIT
#
# Times one R program's detection: rival.R NAME RUNS, paths on standard input. Prints the same lines
# as rival.py; tools/compare starts it.

warm_up_files <- 20
slow_seconds <- 0.5

fread_call <- function() {
  data.table::setDTthreads(1)
  function(path) data.table::fread(path, nrows = 100)
}

readr_call <- function() {
  function(path) readr::read_delim(path, n_max = 200, show_col_types = FALSE, progress = FALSE,
                                   num_threads = 1)
}

timed <- function(call, path) {
  # Sys.time() has microseconds, proc.time() only milliseconds.
  start <- Sys.time()
  suppressWarnings(suppressMessages(call(path)))
  as.numeric(difftime(Sys.time(), start, units = "secs"))
}

median_ms <- function(call, path, runs) {
  tryCatch({
    times <- timed(call, path)
    while (length(times) < runs && times[1] < slow_seconds) {
      times <- c(times, timed(call, path))
    }
    sprintf("%.6f", 1000 * median(times))
  }, error = function(condition) "error")
}

arguments <- commandArgs(trailingOnly = TRUE)
package <- c(fread = "data.table", readr = "readr")[[arguments[1]]]
call <- list(fread = fread_call, readr = readr_call)[[arguments[1]]]()
runs <- as.integer(arguments[2])
paths <- readLines(file("stdin"))
for (path in head(paths, warm_up_files)) {
  median_ms(call, path, 1)
}
cat(sprintf("version\t%s\n", as.character(packageVersion(package))))
for (path in paths) {
  cat(sprintf("%s\t%s\n", path, median_ms(call, path, runs)))
}
